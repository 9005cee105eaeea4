// The sample journal that the database is delivered with: the rows with negative identifiers.
#pragma once

#include "data/deData.h"

/// Moves the sample journal so that it lies around `today` as it lay around the stored
/// installDate, and sets installDate to today. Every body measurement is moved, a user's own too:
/// run only at the very first start. The commands run one by one; an error in one leaves the
/// earlier ones applied. Throws StoreError, and OverflowError where the days between are beyond
/// 16 bits.
void moveSampleJournal(deData &data, QDate today);

/// Whether any of it is left. Looks up one key per table. Throws StoreError.
bool hasSampleJournal(deData &data);

/// Deletes the sample journal. An error stops at the failing statement; the statements before it
/// stay applied.
void deleteSampleJournal(deData &data);
