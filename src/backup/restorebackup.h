// Puts the contents of a backup in the place of the journal's.
#pragma once

#include <QString>

class Connection;
class Session;

/// Replaces all rows of the journal by those of the backup, as one transaction and one step of the
/// session's history under this description. The counters of identifiers never go back: each is
/// raised to the backup's, where that is greater, before the step begins, and stays so even where
/// the step is refused or taken back. Throws StoreError; the rows are as they were then, unless the
/// kind is Uncertain. Afterwards the parameters are to be read anew and the tables announced.
void restoreBackup(Session &session, Connection &backup, const QString &description);
