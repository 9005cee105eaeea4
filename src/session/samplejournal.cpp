#include "session/samplejournal.h"

#include "data/numbers.h"
#include "data/steps.h"
#include "data/valuehelpers.h"

void moveSampleJournal(deData &data, QDate today)
{
    Recordset &common = data.rsCommon;
    common.reopen();
    const qint16 nDays = toInt16(common.date(schema::Common::installDate).daysTo(today));
    const qint16 x = toInt16(MinOf(50 - nDays, 50));

    const auto move = [&data](const Command &command, int days) -> Step {
        return [&data, &command, days] { data.run(command, {Value(days)}); };
    };
    runAsOne(data.Con,
             {// In two steps, first away and then on, never in one.
              move(commands::RecalcBodyDates, -x), move(commands::RecalcBodyDates, x + nDays),
              move(commands::RecalcExerciseDates, nDays), move(commands::RecalcMealDates, nDays),
              move(commands::RecalcUserNoteDates, nDays),
              [&] {
                  common.set(schema::Common::installDate, Value(today));
                  common.update();
              }},
             Refusal::KeepsEarlierSteps);
}

bool hasSampleJournal(deData &data)
{
    return guarded([&] {
        const StatementUse statement =
            data.Con.prepared("select exists (select 1 from MealConsume where MealConsumeID < 0)"
                              " or exists (select 1 from ExercisePerform"
                              " where ExercisePerformID < 0)"
                              " or exists (select 1 from Body where BodyID < 0)"
                              " or exists (select 1 from UserNote where UserNoteID < 0)");
        return statement->executeStep() && statement->getColumn(0).getInt() != 0;
    });
}

void deleteSampleJournal(deData &data)
{
    const auto remove = [&data](const char *sql) -> Step {
        return [&data, sql] { data.run(sql); };
    };
    runAsOne(data.Con,
             {remove("delete from Body where BodyId<0"),
              remove("delete from ExercisePerform where ExercisePerformID<0"),
              remove("delete from MealConsume where MealConsumeID<0"),
              remove("delete from UserNote where UserNoteId<0")},
             Refusal::KeepsEarlierSteps);
}
