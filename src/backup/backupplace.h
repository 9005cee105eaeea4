// A folder with backups in it, each in a folder of its own.
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

/// A finished backup: a folder that is named after its moment and holds Corvana.mdb.
struct Backup
{
    QString folder;
    QDateTime time;

    QString databasePath() const;
};

/// "Corvana 2026-11-23 08-15-30", in local time: a name that every file system takes.
QString backupName(const QDateTime &time);
/// The moment that a name tells; none for any other name.
std::optional<QDateTime> timeOfBackup(const QString &name);
/// What the name of a backup ends with until it is whole.
QString unfinishedSuffix();

/// The finished backups in a folder, the newest first; links are none.
std::vector<Backup> backupsIn(const QString &place);

/// Whether a week has passed since the last one. One of a time to come, of a clock that was wrong,
/// doesn't count.
bool isBackupDue(const QString &place, const QDateTime &now);

/// Removes all but the newest so many, and what was left unfinished for a day. A folder that holds
/// anything besides the two files of a backup stays, and so does the one that was just made, which
/// is none of the newest where the clock was wrong before.
void removeOldBackups(const QString &place, int kept, const QDateTime &now,
                      const QString &justMade = {});
