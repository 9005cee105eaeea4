// The sample journal that the database is delivered with: the rows with negative identifiers.
#pragma once

#include "data/deData.h"

/// Moves the sample journal so that it lies around `today` as it lay around the stored
/// installDate, and sets installDate to today. Every body measurement is moved, a user's own too:
/// run only at the very first start. One action, which a kill leaves done or not begun; an error in
/// one of its commands leaves the earlier ones applied. Throws StoreError, and OverflowError where
/// the days between are beyond 16 bits.
void moveSampleJournal(deData &data, QDate today);

/// Whether any of it is left: looks up one key per table. Throws StoreError.
bool hasSampleJournal(deData &data);

/// Deletes the sample journal, as one action; an error stops at the failing statement, and the
/// statements before it stay applied. Throws StoreError.
void deleteSampleJournal(deData &data);
