#include "database.h"

#include "data/commands.h"
#include "data/connection.h"
#include "data/value.h"
#include "settings/units.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace delivered {

namespace {

QByteArray loadText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw SourceError(path, 0, u"The file can't be read"_s);
    return file.readAll();
}

Value valueOf(const std::optional<Currency> &number)
{
    return number ? Value(*number) : Value();
}

// Inserts a row with a value for each "?" of the list; returns its key.
qint64 insert(Connection &connection, const std::string &tableAndColumns,
              const std::vector<Value> &values)
{
    std::string marks = "?";
    for (size_t i = 1; i < values.size(); ++i)
        marks += ",?";
    connection.write("insert into " + tableAndColumns + " values (" + marks + ")", values);
    return connection.database().getLastInsertRowid();
}

void writeCommon(Connection &connection, const CommonRow &common)
{
    insert(connection,
           "Common (weight, metabolicRate, Measurement, NextBodyID, NextMealConsumeID,"
           " NextExercisePerformID, NextUserNoteID, installDate)",
           {common.weight, units::backgroundCalories(common.weight.toDouble(), true),
            units::codeOf(true), common.nextBodyId, common.nextMealConsumeId,
            common.nextExercisePerformId, common.nextUserNoteId, common.installDate});
}

QList<qint64> writeMeals(Connection &connection, const Catalogue &catalogue)
{
    QList<qint64> categories;
    for (const QString &name : catalogue.categories)
        categories << insert(connection, "MealCategory (Name)", {name});
    QList<qint64> meals;
    for (const Meal &meal : catalogue.meals) {
        meals << insert(connection,
                        "Meal (MealCategoryID, Name, Unit, DefaultQty, Increment, Calories, Fat,"
                        " Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC)",
                        {categories[meal.category], meal.name, meal.unit, valueOf(meal.defaultQty),
                         valueOf(meal.increment), meal.calories, meal.fat, meal.carbohydrate,
                         meal.protein, meal.byNutrient.fat, meal.byNutrient.carbohydrate,
                         meal.byNutrient.protein});
    }
    return meals;
}

QList<qint64> writeActivities(Connection &connection, const QList<Activity> &activities,
                              Currency weight)
{
    QList<qint64> exercises;
    for (const Activity &activity : activities) {
        exercises << insert(connection,
                            "Exercise (Name, Unit, DefaultQty, CaloriesConsume,"
                            " CaloriesConsumeBase, WeightDependent)",
                            {activity.name, activity.unit, valueOf(activity.defaultQty),
                             activity.caloriesAtReference, activity.caloriesAtReference,
                             activity.weightDependent ? 1 : 0});
    }
    // The very statement and factor that follow a change of the weight, so that they change
    // nothing as long as it stays the same.
    const float koef = units::weightFactor(roundToInt16(weight.toDouble()), true);
    connection.write(commands::RecalculateWeightDependent.sql, {koef});
    return exercises;
}

void writeSample(Connection &connection, const SampleJournal &sample, QDate installDate,
                 const QList<qint64> &meals, const QList<qint64> &exercises)
{
    qint64 key = 0;
    for (const SampleConsumption &row : sample.consumptions) {
        insert(connection, "MealConsume (MealConsumeID, MealID, ConsumeDate, ConsumeTime, Qty)",
               {--key, meals[row.meal], installDate.addDays(row.day), row.time, row.qty});
    }
    key = 0;
    for (const SamplePerformance &row : sample.performances) {
        insert(connection,
               "ExercisePerform (ExercisePerformID, ExerciseID, PerformDate, timeBeg, timeEnd,"
               " Qty)",
               {--key, exercises[row.activity], installDate.addDays(row.day), row.begin, row.end,
                row.qty});
    }
    key = 0;
    for (const SampleMeasurement &row : sample.measurements) {
        insert(connection, "Body (BodyID, DateMeasured, Weight, Breast, Waist, Hips, Measurement)",
               {--key, installDate.addDays(row.day), row.weight, row.breast, row.waist, row.hips,
                units::codeOf(true)});
    }
    key = 0;
    for (const SampleNote &row : sample.notes) {
        insert(
            connection, "UserNote (UserNoteID, DateFrom, DateTo, NoteText)",
            {--key, installDate.addDays(row.firstDay), installDate.addDays(row.lastDay), row.text});
    }
}

void writeFile(const QString &path, const Sources &sources)
{
    const std::unique_ptr<Connection> connection = Connection::create(path);
    WriteTransaction transaction(*connection);
    connection->exec(sources.schema.constData());
    writeCommon(*connection, sources.common);
    const QList<qint64> meals = writeMeals(*connection, sources.catalogue);
    const QList<qint64> exercises =
        writeActivities(*connection, sources.catalogue.activities, sources.common.weight);
    writeSample(*connection, sources.sample, sources.common.installDate, meals, exercises);
    transaction.commit();
}

} // namespace

Sources loadSources(const QString &folder)
{
    const QDir files(folder);
    Sources sources;
    sources.schema = loadText(files.filePath(u"schema.sql"_s));
    sources.common = loadCommon(files.filePath(u"common.tsv"_s));
    sources.catalogue = loadCatalogue(files.filePath(u"catalogue"_s));
    sources.sample = loadSampleJournal(files.filePath(u"sample"_s), sources.catalogue);
    return sources;
}

void writeDatabase(const QString &path, const Sources &sources)
{
    const QString unfinished = path + u".unfinished"_s;
    QFile::remove(unfinished);
    writeFile(unfinished, sources);
    QFile::remove(path);
    if (!QFile::rename(unfinished, path))
        throw std::runtime_error("the database can't be renamed to " + path.toStdString());
}

} // namespace delivered
