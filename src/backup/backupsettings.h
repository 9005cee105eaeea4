// Where and how often the program backs up by itself, and what became of it.
#pragma once

#include "session/installation.h"

#include <QDateTime>

/// Kept in Corvana.ini.
struct BackupSettings
{
    static constexpr int mostKept = 999;

    bool isAutomatic = true;
    QString place; ///< the folder with the backups
    int kept = 8;  ///< how many the program keeps in it, from 1 to mostKept
};

/// Of what is missing or makes no sense the usual: weekly, into the folder "backups" beside the
/// journal, eight of them.
BackupSettings backupSettings(const Installation &installation);
/// The folder "backups" beside the journal.
QString usualBackupPlace(const Installation &installation);
/// False where it can't be written.
bool keepBackupSettings(Installation &installation, const BackupSettings &settings);

/// What is told of backups in the main window.
struct BackupState
{
    QDateTime last;  ///< when the last one was made; invalid where there was none
    QString failure; ///< why the automatic one failed since, in words; empty where it didn't
};

BackupState backupState(const Installation &installation);
void keepBackupState(Installation &installation, const BackupState &state);
