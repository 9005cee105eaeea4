// Puts the contents of a backup in the place of the journal's.
#pragma once

#include <QString>

#include <functional>

class Connection;
class Session;

/// Called now and then with what is done, from 0 to 100; false ends it.
using RestoreProgress = std::function<bool(int percent)>;

/// Replaces all rows of the journal by those of the backup, as one transaction and one step of the
/// session's history under this description; false where the progress ended it. The counters of
/// identifiers never go back: each is raised to the backup's, where that is greater, before the
/// step begins, and stays so even where the step is ended, refused or taken back. Throws
/// StoreError. Ended or refused, the rows are as they were, unless the kind is Uncertain.
/// Afterwards the parameters are to be read anew and the tables announced.
bool restoreBackup(Session &session, Connection &backup, const QString &description,
                   const RestoreProgress &progress = {});
