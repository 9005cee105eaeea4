#include "bareengine.h"
#include "data/deData.h"
#include "data/identifiers.h"
#include "fulljournal.h"
#include "measurements.h"
#include "table.h"

using namespace Qt::Literals;

namespace {

constexpr int queryRounds = 200;

// The rows read into a result set, and stepped through with the bare engine.
void compareQuery(Table &table, const QString &what, deData &data, Recordset &rows,
                  const QList<int> &parameters)
{
    Connection other(QString::fromStdString(data.Con.database().getFilename()));
    BareStatement bare(other, rows.command().sql);
    size_t found = 0;
    const auto ours = [&] {
        return timed([&] {
            switch (parameters.size()) {
            case 0:
                rows.reopen();
                break;
            case 1:
                rows.reopen({parameters[0]});
                break;
            case 2:
                rows.reopen({parameters[0], parameters[1]});
                break;
            default:
                rows.reopen({parameters[0], parameters[1], parameters[2]});
            }
            found = rows.rowCount();
        });
    };
    const auto floor = [&] { return timed([&] { bare.run(parameters); }); };
    const Compared measured = compare(queryRounds, ours, floor);
    table.addRatio(QStringLiteral("%1, %2 rows : bare engine").arg(what).arg(found),
                   QStringLiteral("ms"), measured, 2);
    rows.close();
}

void compareQueries(Table &table, deData &data)
{
    const int crowded = static_cast<int>(dayNumber(dayOf40Items));
    const int veryCrowded = static_cast<int>(dayNumber(dayOf200Meals));
    const int last = static_cast<int>(dayNumber(lastDay));
    const int halfAYearBefore = static_cast<int>(dayNumber(lastDay.addMonths(-6)));
    compareQuery(table, u"meals of a day"_qs, data, data.rsMealConsumeSorted, {crowded});
    compareQuery(table, u"activities of a day"_qs, data, data.rsExercisePerformSorted, {crowded});
    compareQuery(table, u"meals of a day"_qs, data, data.rsMealConsumeSorted, {veryCrowded});
    compareQuery(table, u"meals of a category"_qs, data, data.rsMealForCategory, {1});
    // What the progress of six months is made from.
    compareQuery(table, u"balances of six months"_qs, data, data.rsGPCalories,
                 {halfAYearBefore, last});
    compareQuery(table, u"measurements of six months"_qs, data, data.rsGPBody,
                 {halfAYearBefore, last});
    compareQuery(table, u"notes of six months"_qs, data, data.rsGPNotes, {halfAYearBefore, last});
    compareQuery(table, u"first and last day"_qs, data, data.rschkMinMaxdate,
                 {halfAYearBefore, last});
    compareQuery(table, u"days with calories"_qs, data, data.rschkCaloriesDays,
                 {halfAYearBefore, last});
    compareQuery(table, u"gaps between measurements"_qs, data, data.rschkBodyContig,
                 {halfAYearBefore, last, 14});
}

// A meal as its editor stores it: its identifier from the counter, then its row, each durable.
void compareStore(Table &table, deData &data)
{
    makeRoomForMeals(data);
    Connection other(QString::fromStdString(data.Con.database().getFilename()));
    BareStatement counter(other, "update Common set NextMealConsumeID = NextMealConsumeID + 1");
    BareStatement row(other, "insert into MealConsume values"
                             " ((select NextMealConsumeID from Common), 1, ?, 0.5, 1.25)");
    const int day = static_cast<int>(dayNumber(lastDay));
    const auto ours = [&] {
        return timed([&] {
            Recordset &meal = data.rsMealConsume;
            meal.reopen({0});
            meal.addNew();
            meal.set(schema::MealConsume::MealConsumeID, Value(int(NewMealConsumeID(data))));
            meal.set(schema::MealConsume::ConsumeDate, Value(day));
            meal.set(schema::MealConsume::MealID, Value(1));
            meal.set(schema::MealConsume::ConsumeTime, Value(0.5));
            meal.set(schema::MealConsume::Qty, Value(1.25));
            meal.update();
        });
    };
    const auto floor = [&] {
        return timed([&] {
            counter.run({});
            row.run({day});
        });
    };
    table.addRatio(u"a stored meal : the two durable transactions of the bare engine"_qs, u"ms"_qs,
                   compare(200, ours, floor), 1.3);
}

} // namespace

void measureStore(Table &table, const QString &fullJournal)
{
    auto openings = repeated(20, [&] { return timed([&] { deData data(fullJournal); }); });
    table.addTime(u"opening the database file"_qs, median(openings), 5);

    deData data(fullJournal);
    compareQueries(table, data);
    compareStore(table, data);
}
