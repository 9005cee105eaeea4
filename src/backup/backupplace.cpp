#include "backup/backupplace.h"

#include <QDir>

#include <algorithm>

using namespace Qt::Literals;

namespace {

const QString nameFormat = u"'Corvana 'yyyy-MM-dd HH-mm-ss"_s;
const QString databaseName = u"Corvana.mdb"_s;

QStringList foldersIn(const QString &place)
{
    return QDir(place).entryList({u"Corvana *"_s},
                                 QDir::Dirs | QDir::NoSymLinks | QDir::NoDotAndDotDot);
}

QStringList everythingIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                  QDir::NoDotAndDotDot);
}

// The database's file goes last: what is left of a removal that fails is a backup still.
void removeBackup(const QString &folder)
{
    const QStringList files = {u"Corvana.ini"_s, databaseName};
    QStringList others = everythingIn(folder);
    others.removeIf([&](const QString &name) { return files.contains(name); });
    if (!others.isEmpty())
        return;
    for (const QString &name : files) {
        const QString path = QDir(folder).filePath(name);
        if (QFile::exists(path) && !QFile::remove(path))
            return;
    }
    QDir().rmdir(folder);
}

// Its copy may have been cut short in the middle of the engine's work.
void removeUnfinished(const QString &folder)
{
    for (const QString &file : everythingIn(folder)) {
        if (file.startsWith("Corvana."_L1))
            QFile::remove(QDir(folder).filePath(file));
    }
    QDir().rmdir(folder);
}

} // namespace

QString Backup::databasePath() const
{
    return QDir(folder).filePath(databaseName);
}

QString backupName(const QDateTime &time)
{
    return time.toString(nameFormat);
}

std::optional<QDateTime> timeOfBackup(const QString &name)
{
    const QDateTime time = QDateTime::fromString(name, nameFormat);
    if (!time.isValid() || backupName(time) != name)
        return std::nullopt;
    return time;
}

QString unfinishedSuffix()
{
    return u".unfinished"_s;
}

std::vector<Backup> backupsIn(const QString &place)
{
    std::vector<Backup> backups;
    for (const QString &name : foldersIn(place)) {
        const std::optional<QDateTime> time = timeOfBackup(name);
        if (!time)
            continue;
        Backup backup{QDir(place).filePath(name), *time};
        if (QFileInfo(backup.databasePath()).isFile())
            backups.push_back(std::move(backup));
    }
    std::sort(backups.begin(), backups.end(),
              [](const Backup &a, const Backup &b) { return a.time > b.time; });
    return backups;
}

bool isBackupDue(const QString &place, const QDateTime &now)
{
    constexpr int week = 7;
    const std::vector<Backup> backups = backupsIn(place);
    return std::none_of(backups.begin(), backups.end(), [&](const Backup &backup) {
        return backup.time <= now && now < backup.time.addDays(week);
    });
}

void removeOldBackups(const QString &place, int kept, const QDateTime &now, const QString &justMade)
{
    const std::vector<Backup> backups = backupsIn(place);
    for (size_t i = size_t(std::max(kept, 1)); i < backups.size(); ++i) {
        if (backups[i].folder != justMade)
            removeBackup(backups[i].folder);
    }
    for (const QString &name : foldersIn(place)) {
        if (!name.endsWith(unfinishedSuffix()))
            continue;
        const std::optional<QDateTime> time = timeOfBackup(name.chopped(unfinishedSuffix().size()));
        if (time && time->addDays(1) < now)
            removeUnfinished(QDir(place).filePath(name));
    }
}
