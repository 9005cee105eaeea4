// What was eaten or done on a day, as it is stored, and its copies on another day.
#pragma once

#include "data/deData.h"

#include <optional>
#include <vector>

/// One of the two kinds: where its entries are, and what their columns are called.
struct EntryKind
{
    const schema::Table *table;
    const Command *byId;
    const Command *ofDay; ///< with what is shown of them: name, unit and calories
    schema::Column subject;
    schema::Column date;
    std::vector<schema::Column> times;
    schema::Column quantity;

    bool isMeal() const { return table == &schema::MealConsume::table; }
};

/// Meals, and then activities.
const std::vector<EntryKind> &entryKinds();
/// The kind with this table, which must be one of them.
const EntryKind &entryKindOf(const schema::Table &table);

struct DayEntry
{
    const EntryKind *kind;
    qint32 id;
    Value subject;            ///< what was eaten or done: the key of its catalogue record
    std::vector<Value> times; ///< of an activity its begin and its end
    Value quantity;
};

/// The row that a result set of one of the kind's commands stands on.
DayEntry entryIn(const Recordset &row, const EntryKind &kind);
/// Throws StoreError, of kind Gone where there is none.
DayEntry readEntry(deData &data, const EntryKind &kind, qint32 id);

/// The entry at a time so many minutes later, or earlier where they are negative; none where it
/// would begin or end on another day.
std::optional<DayEntry> shifted(DayEntry entry, int minutes);

/// The same entries with new identifiers, which are taken durably, all of them or none: before an
/// action is recorded. Throws StoreError, and OverflowError where the identifiers are used up.
std::vector<DayEntry> withNewIdentifiers(deData &data, std::vector<DayEntry> entries);
/// Stores the copies on a day, each the copy of the original in its place, as one transaction.
/// Throws StoreError, of kind Gone or Changed where an original is no longer stored as it was read.
void storeCopies(deData &data, const std::vector<DayEntry> &originals,
                 const std::vector<DayEntry> &copies, QDate day);
