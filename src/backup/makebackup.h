// Makes a backup of the journal while it is in use.
#pragma once

#include "data/filepassword.h"

#include <QDateTime>
#include <QString>

#include <functional>

/// Called now and then with what is done, from 0 to 100; false ends it.
using BackupProgress = std::function<bool(int percent)>;

/// Copies the journal's file, as it is at one moment whatever other programs do to it, and the
/// Corvana.ini beside it into a new folder in `place`, which is made where there is none. The copy
/// is read again and compared, and it is on the disk before the folder gets its name; none that
/// exists is touched. Of a locked journal, whose password is to be handed in, the copy is locked
/// with the same. The folder; empty where the progress ended it. Throws BackupError and
/// StoreError; like an ended one, a refused one leaves nothing behind.
QString makeBackup(const QString &databasePath, const QString &place, const QDateTime &now,
                   const BackupProgress &progress = {}, const FilePassword &password = {});
