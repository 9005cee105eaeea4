#include "session/samplejournal.h"

#include "data/numbers.h"
#include "data/valuehelpers.h"

using namespace Qt::Literals;

void moveSampleJournal(deData &data, QDate today)
{
    Recordset &common = data.rsCommon;
    if (!common.isOpen())
        common.open();
    const qint16 nDays = toInt16(common.date("installDate"_L1).daysTo(today));
    const qint16 x = toInt16(MinOf(50 - nDays, 50));

    // In two steps, first away and then on, never in one.
    data.run(commands::RecalcBodyDates, {Value(-x)});
    data.run(commands::RecalcBodyDates, {Value(x + nDays)});
    data.run(commands::RecalcExerciseDates, {Value(int(nDays))});
    data.run(commands::RecalcMealDates, {Value(int(nDays))});
    data.run(commands::RecalcUserNoteDates, {Value(int(nDays))});

    common.set("installDate"_L1, Value(today));
    common.update();
}

bool hasSampleJournal(deData &data)
{
    return guarded([&] {
        SQLite::Statement &statement =
            data.Con.prepared("select exists (select 1 from MealConsume where MealConsumeID < 0)"
                              " or exists (select 1 from ExercisePerform"
                              " where ExercisePerformID < 0)"
                              " or exists (select 1 from Body where BodyID < 0)"
                              " or exists (select 1 from UserNote where UserNoteID < 0)");
        const bool found = statement.executeStep() && statement.getColumn(0).getInt() != 0;
        statement.reset(); // holds no lock on the file
        return found;
    });
}

void deleteSampleJournal(deData &data)
{
    data.run("delete from Body where BodyId<0");
    data.run("delete from ExercisePerform where ExercisePerformID<0");
    data.run("delete from MealConsume where MealConsumeID<0");
    data.run("delete from UserNote where UserNoteId<0");
}
