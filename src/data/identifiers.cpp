#include "data/identifiers.h"

#include "data/numbers.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <vector>

namespace {

void requireNoRecording(const deData &data)
{
    // Taken back with the action, a counter would hand out the number once more.
    if (data.Con.recorder())
        throw std::logic_error("identifiers are taken before an action is recorded");
}

qint16 nextOf(deData &data, const schema::Column &counter)
{
    requireNoRecording(data);
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

const schema::Column &counterOf(const schema::Table &table)
{
    static const std::vector<std::pair<const schema::Table *, schema::Column>> counters = {
        {&schema::MealConsume::table, schema::Common::NextMealConsumeID},
        {&schema::ExercisePerform::table, schema::Common::NextExercisePerformID},
        {&schema::Body::table, schema::Common::NextBodyID},
        {&schema::UserNote::table, schema::Common::NextUserNoteID}};
    const auto found = std::find_if(counters.begin(), counters.end(),
                                    [&](const auto &counter) { return counter.first == &table; });
    if (found == counters.end())
        throw std::logic_error("no counter for the identifiers of this table");
    return found->second;
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

qint16 newIdentifiers(deData &data, const schema::Table &table, int count)
{
    requireNoRecording(data);
    const schema::Column &counter = counterOf(table);
    Recordset &common = data.rsCommon;
    WriteTransaction transaction(data.Con);
    common.reopen();
    const qint64 last = qint64(common.integer(counter)) + count;
    const qint16 first = toInt16(toInt16(last) - count + 1);
    common.set(counter, Value(last));
    common.update();
    transaction.commit();
    return first;
}

int identifiersLeft(deData &data, const schema::Table &table)
{
    Recordset &common = data.rsCommon;
    common.reopen();
    const qint64 last = common.integer(counterOf(table));
    return int(std::clamp<qint64>(std::numeric_limits<qint16>::max() - last, 0,
                                  std::numeric_limits<qint16>::max()));
}
