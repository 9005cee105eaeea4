// The journal as files of comma-separated values.
#pragma once

#include "exchange/exportdays.h"

#include <QDateTime>

#include <optional>

struct ExportOrder
{
    QString folder; ///< of the user's choice; the export gets a new one in it
    CsvFormat format;
    std::optional<ExportPeriod> period; ///< none: the whole journal, with what is on no day
    QDateTime now;                      ///< the new folder is named after it
};

/// Called with the share that is done, 0 to 1, every few hundred rows; false cancels.
using ExportProgress = std::function<bool(double share)>;

/// Writes a file for each table and one by day, all of the same state of the journal, and returns
/// the new folder's path; none where it was cancelled. Until it is whole the folder has another
/// name, and what is cancelled or refused leaves nothing behind. Rows go straight from the engine
/// to the files, so that a journal of any size takes the same memory. Throws StoreError and
/// ExportError.
std::optional<QString> exportJournal(Connection &connection, const ExportOrder &order,
                                     const ExportProgress &progress);
