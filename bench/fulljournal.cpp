#include "fulljournal.h"

#include "data/deData.h"
#include "session/installation.h"
#include "session/samplejournal.h"

#include <QFile>

namespace {

constexpr int rowsPerTable = 32'767;
constexpr int days = 3652;

void copyDelivered(const QString &path)
{
    if (!QFile::copy(QStringLiteral(CORVANA_DELIVERED), path))
        qFatal("the delivered database can't be copied to %s", qPrintable(path));
}

// The crowded day takes the first rows, the others share what is left.
int dayOfRow(int row, QDate crowded, int crowd)
{
    if (row <= crowd)
        return static_cast<int>(dayNumber(crowded));
    int back = row % days;
    // These two are left alone, to have the rows that they are named after.
    const QDate day = lastDay.addDays(-back);
    if (day == dayOf40Items || day == dayOf200Meals)
        back = days;
    return static_cast<int>(dayNumber(lastDay)) - back;
}

} // namespace

void makeFullJournal(const QString &path)
{
    copyDelivered(path);
    deData data(path);
    deleteSampleJournal(data);
    SQLite::Database &database = data.Con.database();
    WriteTransaction transaction(data.Con);
    SQLite::Statement meal(database, "insert into MealConsume values (?, (select MealID from Meal"
                                     " order by MealID limit 1 offset ?), ?, ?, ?)");
    SQLite::Statement activity(database,
                               "insert into ExercisePerform values (?, (select ExerciseID from"
                               " Exercise order by ExerciseID limit 1 offset ?), ?, ?, ?, ?)");
    SQLite::Statement body(database, "insert into Body values (?, ?, ?, 95, 82.5, 98, 'M')");
    SQLite::Statement note(database, "insert into UserNote values (?, ?, ?, ?)");
    const auto insert = [](SQLite::Statement &statement, const std::vector<Value> &values) {
        int index = 0;
        for (const Value &value : values)
            bindValue(statement, ++index, value);
        statement.exec();
        statement.reset();
    };
    for (int row = 1; row <= rowsPerTable; ++row) {
        const double time = double(row * 37 % 1440) / 1440;
        const int day = dayOfRow(row, dayOf40Items, 0);
        const int mealDay =
            row <= 20 ? dayOfRow(row, dayOf40Items, 20) : dayOfRow(row - 20, dayOf200Meals, 200);
        insert(meal, {row, row % 300, mealDay, time, 0.25 * (row % 9 + 1)});
        insert(activity, {row, row % 90, dayOfRow(row, dayOf40Items, 20), time * 0.9,
                          time * 0.9 + 0.03, row % 45 + 1});
        insert(body, {row, day, 70 + 0.1 * (row % 80)});
        insert(note, {row, day, day, QStringLiteral("A note of some length, number %1.").arg(row)});
    }
    transaction.commit();
}

void makeRoomForMeals(deData &data)
{
    const std::string last = std::to_string(rowsPerTable - 500);
    data.run(("delete from MealConsume where MealConsumeID > " + last).c_str());
    data.run(("update Common set NextMealConsumeID = " + last).c_str());
}

void growCatalogue(deData &data, int meals, int activities)
{
    WriteTransaction transaction(data.Con);
    data.Con.write("with recursive n(i) as (select (select count(*) from Meal) + 1 union all"
                   " select i + 1 from n where i < ?)"
                   " insert into Meal (MealCategoryID, Name, Unit, DefaultQty, Calories, Fat,"
                   " Carbohydrate, Protein, FatBC, CarbohydrateBC, ProteinBC)"
                   " select i % 25 + 1, 'Home-made dish with vegetables, number ' || i,"
                   " 'plate (' || i || ' g)', 1, 400, 10, 50, 20, 100, 200, 100 from n",
                   {Value(meals)});
    data.Con.write(
        "with recursive n(i) as (select (select count(*) from Exercise) + 1 union all"
        " select i + 1 from n where i < ?)"
        " insert into Exercise (Name, Unit, CaloriesConsume, CaloriesConsumeBase,"
        " WeightDependent) select 'Walk around the lake, number ' || i, 'minute', 4, 4, 0"
        " from n",
        {Value(activities)});
    transaction.commit();
}

void makeStartedFolder(const QString &folder)
{
    Installation installation(folder);
    copyDelivered(installation.databasePath());
    deData data(installation.databasePath());
    moveSampleJournal(data, QDate::currentDate());
    installation.setFirstStartDone();
}
