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
