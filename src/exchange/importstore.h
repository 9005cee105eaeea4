// Stores what an import has planned.
#pragma once

#include "exchange/importplan.h"

/// The user has ended an import before it was stored.
class ImportCancelled : public std::exception
{
};

/// Called with the share that is done, 0 to 1, every few hundred records; false cancels.
using ImportProgress = std::function<bool(double share)>;

/// Stores all records of a plan as one transaction and one step of the session's history under this
/// description. Identifiers are taken before, and are lost where it is refused. Throws StoreError,
/// ImportCancelled, and ImportError where another program has changed the journal since it was
/// planned; nothing is stored then, unless the error's kind is Uncertain. The tables of the import
/// are to be announced afterwards.
void storeImport(Session &session, const std::vector<ImportFile> &files, ImportPlan plan,
                 const QString &description, const ImportProgress &progress = {});
