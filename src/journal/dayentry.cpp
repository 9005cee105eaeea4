#include "journal/dayentry.h"

#include "data/identifiers.h"
#include "data/steps.h"

#include <algorithm>
#include <stdexcept>

namespace {

bool isSame(const Value &a, const Value &b)
{
    return a.storage() == b.storage();
}

bool isSame(const DayEntry &a, const DayEntry &b)
{
    return isSame(a.subject, b.subject) && isSame(a.quantity, b.quantity) &&
           std::equal(a.times.begin(), a.times.end(), b.times.begin(), b.times.end(),
                      [](const Value &x, const Value &y) { return isSame(x, y); });
}

void storeCopy(deData &data, const DayEntry &original, const DayEntry &copy, QDate day)
{
    if (!isSame(readEntry(data, *original.kind, original.id), original))
        throw StoreError(StoreError::Kind::Changed, "another program has changed the record");
    const EntryKind &kind = *copy.kind;
    Recordset rows(data.Con, *kind.byId);
    rows.open({Value(copy.id)});
    rows.addNew();
    rows.set(kind.table->key(), Value(copy.id));
    rows.set(kind.subject, copy.subject);
    rows.set(kind.date, Value(day));
    for (size_t i = 0; i < kind.times.size(); ++i)
        rows.set(kind.times[i], copy.times[i]);
    rows.set(kind.quantity, copy.quantity);
    rows.update();
}

} // namespace

const std::vector<EntryKind> &entryKinds()
{
    using schema::ExercisePerform;
    using schema::MealConsume;
    static const std::vector<EntryKind> kinds{{&MealConsume::table,
                                               &commands::MealConsume,
                                               &commands::MealConsumeSorted,
                                               MealConsume::MealID,
                                               MealConsume::ConsumeDate,
                                               {MealConsume::ConsumeTime},
                                               MealConsume::Qty},
                                              {&ExercisePerform::table,
                                               &commands::ExercisePerform,
                                               &commands::ExercisePerformSorted,
                                               ExercisePerform::ExerciseID,
                                               ExercisePerform::PerformDate,
                                               {ExercisePerform::timeBeg, ExercisePerform::timeEnd},
                                               ExercisePerform::Qty}};
    return kinds;
}

const EntryKind &entryKindOf(const schema::Table &table)
{
    for (const EntryKind &kind : entryKinds()) {
        if (kind.table == &table)
            return kind;
    }
    throw std::logic_error("no entries of a day are in this table");
}

DayEntry entryIn(const Recordset &row, const EntryKind &kind)
{
    std::vector<Value> times;
    times.reserve(kind.times.size());
    for (const schema::Column &time : kind.times)
        times.push_back(row.value(time));
    return {&kind, row.integer(kind.table->key()), row.value(kind.subject), std::move(times),
            row.value(kind.quantity)};
}

DayEntry readEntry(deData &data, const EntryKind &kind, qint32 id)
{
    Recordset rows(data.Con, *kind.byId); // of its own: a window's may be in use
    rows.open({Value(id)});
    if (rows.isEof())
        throw StoreError(StoreError::Kind::Gone, "the record has been deleted");
    return entryIn(rows, kind);
}

std::optional<DayEntry> shifted(DayEntry entry, int minutes)
{
    if (minutes == 0)
        return entry; // as it is, whatever another program has stored
    constexpr int minutesPerDay = 24 * 60;
    for (Value &time : entry.times) {
        const int minute = QTime(0, 0).secsTo(time.toTime()) / 60 + minutes;
        if (minute < 0 || minute >= minutesPerDay)
            return std::nullopt;
        time = Value(QTime(minute / 60, minute % 60));
    }
    return entry;
}

std::vector<DayEntry> withNewIdentifiers(deData &data, std::vector<DayEntry> entries)
{
    WriteTransaction transaction(data.Con);
    for (DayEntry &entry : entries)
        entry.id = newIdentifier(data, *entry.kind->table).value();
    transaction.commit();
    return entries;
}

void storeCopies(deData &data, const std::vector<DayEntry> &originals,
                 const std::vector<DayEntry> &copies, QDate day)
{
    std::vector<Step> steps;
    steps.reserve(copies.size());
    for (size_t i = 0; i < copies.size(); ++i)
        steps.emplace_back([&, i] { storeCopy(data, originals.at(i), copies[i], day); });
    runAsOne(data.Con, steps, Refusal::UndoesAll);
}
