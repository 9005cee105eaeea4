// Identifiers for new journal rows, from the counters of table Common.
#pragma once

#include "data/deData.h"

#include <optional>

/// The next identifier of a journal table. The counter is increased and stored, durably, before
/// the caller inserts its record, so that no number is ever handed out twice, by no other program
/// on the same file either; a number whose insert fails is lost. Throws StoreError, and
/// OverflowError once the counter passes 32767 (it has then been stored already).
qint16 NewMealConsumeID(deData &data);
qint16 NewExercisePerformID(deData &data);
qint16 NewBodyID(deData &data);
qint16 NewUserNoteID(deData &data);

/// The same by the table; of one whose keys the database hands out itself, none.
std::optional<qint16> newIdentifier(deData &data, const schema::Table &table);

/// The first of so many in a row, at least one, of a table that has a counter; taken like a single
/// one. Throws OverflowError where there are not as many left, and nothing is stored then.
qint16 newIdentifiers(deData &data, const schema::Table &table, int count);
/// How many a table that has a counter has left.
int identifiersLeft(deData &data, const schema::Table &table);
