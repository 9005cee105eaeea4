#include "backup/backupsettings.h"

#include <QDir>

using namespace Qt::Literals;

namespace {

const QString automaticKey = u"Backup/Automatic"_s;
const QString placeKey = u"Backup/Folder"_s;
const QString keptKey = u"Backup/Kept"_s;
const QString lastKey = u"Backup/Last"_s;
const QString failureKey = u"Backup/Failure"_s;

} // namespace

QString usualBackupPlace(const Installation &installation)
{
    return QDir(installation.folder()).filePath(u"backups"_s);
}

BackupSettings backupSettings(const Installation &installation)
{
    BackupSettings settings;
    settings.isAutomatic = installation.value(automaticKey) != u"false"_s;
    settings.place = installation.value(placeKey);
    if (settings.place.isEmpty())
        settings.place = usualBackupPlace(installation);
    const int kept = installation.value(keptKey).toInt();
    if (kept >= 1 && kept <= BackupSettings::mostKept)
        settings.kept = kept;
    return settings;
}

bool keepBackupSettings(Installation &installation, const BackupSettings &settings)
{
    // The usual place goes along with a program folder that is moved.
    const bool isUsual = QDir(settings.place) == QDir(usualBackupPlace(installation));
    return installation.setValues({{automaticKey, settings.isAutomatic ? u"true"_s : u"false"_s},
                                   {placeKey, isUsual ? QString() : settings.place},
                                   {keptKey, QString::number(settings.kept)}});
}

BackupState backupState(const Installation &installation)
{
    return {QDateTime::fromString(installation.value(lastKey), Qt::ISODate),
            installation.value(failureKey)};
}

void keepBackupState(Installation &installation, const BackupState &state)
{
    installation.setValues(
        {{lastKey, state.last.toString(Qt::ISODate)}, {failureKey, state.failure}});
}
