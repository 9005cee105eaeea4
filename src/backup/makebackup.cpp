#include "backup/makebackup.h"

#include "backup/backuperror.h"
#include "backup/backupplace.h"
#include "backup/integrity.h"
#include "data/connection.h"
#include "data/schema.h"
#include "session/installation.h"
#include "session/synchronizedfolder.h"

#include <QDir>

#include <SQLiteCpp/Backup.h>
#include <sqlite3.h>

#include <algorithm>

namespace {

/// The folder while it is filled: gone again unless it is finished.
class UnfinishedBackup
{
public:
    UnfinishedBackup(const QString &place, const QDateTime &now)
        : m_place(place)
        , m_placeIsNew(!QDir(place).exists())
    {
        if (!QDir().mkpath(place))
            throw BackupError(BackupError::tr("The folder %1 can't be made.")
                                  .arg(QDir::toNativeSeparators(place)));
        // The name may be taken, by a backup of this second or by a program that makes one.
        constexpr int mostTries = 60;
        const QDir folder(place);
        for (int later = 0; later < mostTries; ++later) {
            m_name = backupName(now.addSecs(later));
            if (!folder.exists(m_name) && folder.mkdir(unfinishedName()))
                return;
        }
        removePlace();
        throw BackupError(BackupError::tr("The folder %1 can't be written.")
                              .arg(QDir::toNativeSeparators(place)));
    }
    ~UnfinishedBackup()
    {
        if (m_isFinished)
            return;
        QDir(folder()).removeRecursively();
        removePlace();
    }
    UnfinishedBackup(const UnfinishedBackup &) = delete;
    UnfinishedBackup &operator=(const UnfinishedBackup &) = delete;

    QString folder() const { return QDir(m_place).filePath(unfinishedName()); }

    /// Gives it its name; the folder.
    QString finish()
    {
        if (!synchronizeFolder(folder()) || !QDir(m_place).rename(unfinishedName(), m_name))
            throw BackupError(BackupError::tr("The folder %1 can't be written.")
                                  .arg(QDir::toNativeSeparators(m_place)));
        m_isFinished = true;
        synchronizeFolder(m_place);
        if (m_placeIsNew)
            synchronizeFolder(QFileInfo(m_place).absolutePath());
        return QDir(m_place).filePath(m_name);
    }

private:
    QString unfinishedName() const { return m_name + unfinishedSuffix(); }
    void removePlace() const
    {
        if (m_placeIsNew)
            QDir().rmdir(m_place); // refused where it is in use already
    }

    QString m_place;
    bool m_placeIsNew;
    QString m_name;
    bool m_isFinished = false;
};

std::vector<qint64> rowCounts(Connection &connection)
{
    std::vector<qint64> counts;
    for (const schema::Table *table : schema::tables) {
        const StatementUse count =
            connection.prepared(std::string("select count(*) from ") + table->name());
        guarded([&] { count->executeStep(); });
        counts.push_back(count->getColumn(0).getInt64());
    }
    return counts;
}

// False where the progress ended it.
bool copyPages(Connection &from, Connection &to, const BackupProgress &progress)
{
    constexpr int pagesAtOnce = 256; // a megabyte
    constexpr int shareOfCopying = 80;
    return guarded([&] {
        SQLite::Backup copying(to.database(), from.database());
        for (;;) {
            const int result = copying.executeStep(pagesAtOnce);
            if (result == SQLITE_DONE)
                return true;
            if (result != SQLITE_OK)
                throw StoreError(StoreError::Kind::Busy, "the file is in use");
            const int total = std::max(1, copying.getTotalPageCount());
            const int done = total - copying.getRemainingPageCount();
            if (progress && !progress(int(qint64(shareOfCopying) * done / total)))
                return false;
        }
    });
}

// Reads it from the disk, not from what the copying connection still holds.
void verifyCopy(const QString &path, const FilePassword &password,
                const std::vector<qint64> &counts)
{
    Connection copy(path, password);
    if (!isWhole(copy))
        throw BackupError(BackupError::tr(
            "The copy is not whole, since the journal's file is damaged. The help page \"Your "
            "data\" says how to go on."));
    if (rowCounts(copy) != counts)
        throw BackupError(BackupError::tr("The copy does not hold what the journal holds."));
}

bool copyDatabase(const QString &databasePath, const QString &path, const BackupProgress &progress,
                  const FilePassword &password)
{
    // A connection of its own, whose transaction keeps the state to be copied from being changed.
    Connection journal(databasePath, password);
    journal.exec("begin");
    const std::vector<qint64> counts = rowCounts(journal);
    {
        const auto copy = Connection::create(path, journal.password());
        copy->exec("PRAGMA journal_mode=OFF"); // nothing of it is worth bringing back
        if (!copyPages(journal, *copy, progress))
            return false;
    }
    verifyCopy(path, password, counts);
    return !progress || progress(100);
}

// Without it the program would take a copied folder for a new installation.
void copySettings(const QString &programFolder, const QString &folder)
{
    const QString settings = Installation(programFolder).settingsPath();
    if (!QFile::exists(settings))
        Installation(folder).setFirstStartDone();
    else if (!copySynchronized(settings, Installation(folder).settingsPath()))
        throw BackupError(BackupError::tr("The file Corvana.ini can't be copied."));
}

} // namespace

QString makeBackup(const QString &databasePath, const QString &place, const QDateTime &now,
                   const BackupProgress &progress, const FilePassword &password)
{
    UnfinishedBackup backup(place, now);
    if (!copyDatabase(databasePath, Installation(backup.folder()).databasePath(), progress,
                      password))
        return {};
    copySettings(QFileInfo(databasePath).absolutePath(), backup.folder());
    return backup.finish();
}
