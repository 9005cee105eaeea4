#include "data/identifiers.h"

#include "data/numbers.h"

#include <stdexcept>

namespace {

qint16 nextOf(deData &data, const schema::Column &counter)
{
    // Taken back with the action, a counter would hand out the number once more.
    if (data.Con.recorder())
        throw std::logic_error("identifiers are taken before an action is recorded");
    Recordset &common = data.rsCommon;
    WriteTransaction transaction(data.Con);
    // Read under the lock: the row that is open may be older than another program's store.
    common.reopen();
    const qint32 next = toInt32(qint64(common.integer(counter)) + 1);
    common.set(counter, Value(next));
    common.update();
    transaction.commit();
    return toInt16(next);
}

} // namespace

qint16 NewMealConsumeID(deData &data)
{
    return nextOf(data, schema::Common::NextMealConsumeID);
}

qint16 NewExercisePerformID(deData &data)
{
    return nextOf(data, schema::Common::NextExercisePerformID);
}

qint16 NewBodyID(deData &data)
{
    return nextOf(data, schema::Common::NextBodyID);
}

qint16 NewUserNoteID(deData &data)
{
    return nextOf(data, schema::Common::NextUserNoteID);
}

std::optional<qint16> newIdentifier(deData &data, const schema::Table &table)
{
    const std::pair<const schema::Table *, qint16 (*)(deData &)> counters[] = {
        {&schema::MealConsume::table, NewMealConsumeID},
        {&schema::ExercisePerform::table, NewExercisePerformID},
        {&schema::Body::table, NewBodyID},
        {&schema::UserNote::table, NewUserNoteID}};
    for (const auto &[counted, next] : counters) {
        if (counted == &table)
            return next(data);
    }
    return std::nullopt;
}
