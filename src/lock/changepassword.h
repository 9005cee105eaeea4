// Locks the journal's file, unlocks it, or gives it another password.
#pragma once

#include <QString>

class Connection;
class FilePassword;

/// Writes the file anew, with this password or, where it is empty, with none, and puts it in the
/// place of the old one in one step: whenever the program or the power ends, the one or the other
/// is there. No other program can read or write meanwhile; one that has the file open is refused
/// afterwards. Rows keep their identifiers, so that steps of the history still fit. Throws
/// StoreError; the file is the old one then, unless the kind is Uncertain or Replaced.
void changePassword(Connection &journal, const FilePassword &password);

/// Removes what a change that was cut short has left beside the file, which may be readable without
/// a password. To be called before the file is opened.
void removeUnfinishedChange(const QString &path);
