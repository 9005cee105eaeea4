#include "data/identifiers.h"

#include "data/numbers.h"

using namespace Qt::Literals;

namespace {

qint16 nextOf(deData &data, QLatin1StringView counter)
{
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
    return nextOf(data, "NextMealConsumeID"_L1);
}

qint16 NewExercisePerformID(deData &data)
{
    return nextOf(data, "NextExercisePerformID"_L1);
}

qint16 NewBodyID(deData &data)
{
    return nextOf(data, "NextBodyID"_L1);
}

qint16 NewUserNoteID(deData &data)
{
    return nextOf(data, "NextUserNoteID"_L1);
}
