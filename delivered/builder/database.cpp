#include "database.h"

#include "schemacheck.h"

#include "data/commands.h"
#include "data/connection.h"
#include "data/schema.h"
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

using Row = std::vector<std::pair<schema::Column, Value>>;

// Inserts a row; returns its key.
qint64 insert(Connection &connection, const schema::Table &table, const Row &row)
{
    std::string columns;
    std::string marks;
    std::vector<Value> values;
    for (const auto &[column, value] : row) {
        columns += (columns.empty() ? "" : ", ") + std::string(column.name());
        marks += marks.empty() ? "?" : ",?";
        values.push_back(value);
    }
    connection.write(std::string("insert into ") + table.name() + " (" + columns + ") values (" +
                         marks + ")",
                     values);
    return connection.database().getLastInsertRowid();
}

void writeCommon(Connection &connection, const CommonRow &common)
{
    using T = schema::Common;
    insert(connection, T::table,
           {{T::weight, common.weight},
            {T::metabolicRate, units::backgroundCalories(common.weight.toDouble(), true)},
            {T::Measurement, units::codeOf(true)},
            {T::NextBodyID, common.nextBodyId},
            {T::NextMealConsumeID, common.nextMealConsumeId},
            {T::NextExercisePerformID, common.nextExercisePerformId},
            {T::NextUserNoteID, common.nextUserNoteId},
            {T::installDate, common.installDate}});
}

QList<qint64> writeMeals(Connection &connection, const Catalogue &catalogue)
{
    using T = schema::Meal;
    QList<qint64> categories;
    for (const QString &name : catalogue.categories)
        categories << insert(connection, schema::MealCategory::table,
                             {{schema::MealCategory::Name, name}});
    QList<qint64> meals;
    for (const DeliveredMeal &meal : catalogue.meals) {
        Row row{{T::MealCategoryID, categories[meal.category]},
                {T::Name, meal.name},
                {T::Unit, meal.unit},
                {T::DefaultQty, valueOf(meal.defaultQty)},
                {T::Increment, valueOf(meal.increment)},
                {T::Calories, meal.calories}};
        for (const Nutrient n : allNutrients) {
            row.emplace_back(T::weights[n], meal.grams[n]);
            row.emplace_back(T::shares[n], meal.byNutrient[n]);
        }
        meals << insert(connection, T::table, row);
    }
    return meals;
}

QList<qint64> writeActivities(Connection &connection, const QList<Activity> &activities,
                              Currency weight)
{
    using T = schema::Exercise;
    QList<qint64> exercises;
    for (const Activity &activity : activities) {
        exercises << insert(connection, T::table,
                            {{T::Name, activity.name},
                             {T::Unit, activity.unit},
                             {T::DefaultQty, valueOf(activity.defaultQty)},
                             {T::CaloriesConsume, activity.caloriesAtReference},
                             {T::CaloriesConsumeBase, activity.caloriesAtReference},
                             {T::WeightDependent, activity.weightDependent ? 1 : 0}});
    }
    // The very statement and factor that follow a change of the weight, so that they change
    // nothing as long as it stays the same.
    const float koef = units::weightFactor(roundToInt16(weight.toDouble()), true);
    connection.write(commands::RecalculateWeightDependent.sql, {koef});
    return exercises;
}

void writeConsumptions(Connection &connection, const SampleJournal &sample, QDate installDate,
                       const QList<qint64> &meals)
{
    using T = schema::MealConsume;
    qint64 key = 0;
    for (const SampleConsumption &row : sample.consumptions) {
        insert(connection, T::table,
               {{T::MealConsumeID, --key},
                {T::MealID, meals[row.meal]},
                {T::ConsumeDate, installDate.addDays(row.day)},
                {T::ConsumeTime, row.time},
                {T::Qty, row.qty}});
    }
}

void writePerformances(Connection &connection, const SampleJournal &sample, QDate installDate,
                       const QList<qint64> &exercises)
{
    using T = schema::ExercisePerform;
    qint64 key = 0;
    for (const SamplePerformance &row : sample.performances) {
        insert(connection, T::table,
               {{T::ExercisePerformID, --key},
                {T::ExerciseID, exercises[row.activity]},
                {T::PerformDate, installDate.addDays(row.day)},
                {T::timeBeg, row.begin},
                {T::timeEnd, row.end},
                {T::Qty, row.qty}});
    }
}

void writeMeasurements(Connection &connection, const SampleJournal &sample, QDate installDate)
{
    using T = schema::Body;
    qint64 key = 0;
    for (const SampleMeasurement &row : sample.measurements) {
        insert(connection, T::table,
               {{T::BodyID, --key},
                {T::DateMeasured, installDate.addDays(row.day)},
                {T::Weight, row.weight},
                {T::Breast, row.breast},
                {T::Waist, row.waist},
                {T::Hips, row.hips},
                {T::Measurement, units::codeOf(true)}});
    }
}

void writeNotes(Connection &connection, const SampleJournal &sample, QDate installDate)
{
    using T = schema::UserNote;
    qint64 key = 0;
    for (const SampleNote &row : sample.notes) {
        insert(connection, T::table,
               {{T::UserNoteID, --key},
                {T::DateFrom, installDate.addDays(row.firstDay)},
                {T::DateTo, installDate.addDays(row.lastDay)},
                {T::NoteText, row.text}});
    }
}

void writeFile(const QString &path, const Sources &sources)
{
    const std::unique_ptr<Connection> connection = Connection::create(path);
    WriteTransaction transaction(*connection);
    connection->exec(sources.schema.constData());
    checkSchema(*connection);
    writeCommon(*connection, sources.common);
    const QList<qint64> meals = writeMeals(*connection, sources.catalogue);
    const QList<qint64> exercises =
        writeActivities(*connection, sources.catalogue.activities, sources.common.weight);
    const QDate installDate = sources.common.installDate;
    writeConsumptions(*connection, sources.sample, installDate, meals);
    writePerformances(*connection, sources.sample, installDate, exercises);
    writeMeasurements(*connection, sources.sample, installDate);
    writeNotes(*connection, sources.sample, installDate);
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
