#include "data/pendingrollback.h"

#include "data/connection.h"

#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>

#include <optional>

using namespace Qt::Literals;

namespace {

const QString journalSuffix = u"-journal"_s;

struct Examined
{
    bool isLocked = false;
    bool isWhole = false;
    int strays = 0;         ///< rows that refer to none
    qint64 changeCount = 0; ///< raised by one by every store
};

// Stands in the header of the file, which is encrypted: the engine has to read it.
qint64 changeCountOf(sqlite3 *database)
{
    sqlite3_int64 size = 0;
    const std::unique_ptr<unsigned char, decltype(&sqlite3_free)> bytes(
        sqlite3_serialize(database, "main", &size, 0), &sqlite3_free);
    constexpr int offset = 24;
    qint64 count = 0;
    for (int i = offset; bytes && i < offset + 4; ++i)
        count = count * 256 + bytes.get()[i];
    return count;
}

// None where the file can't even be opened.
std::optional<Examined> examine(const QString &path, const FilePassword &password)
{
    try {
        Connection connection(path, password);
        SQLite::Database &database = connection.database();
        Examined result;
        result.changeCount = changeCountOf(database.getHandle());
        SQLite::Statement integrity(database, "PRAGMA integrity_check(1)");
        result.isWhole = integrity.executeStep() && integrity.getColumn(0).getString() == "ok";
        SQLite::Statement references(database, "PRAGMA foreign_key_check");
        while (references.executeStep())
            ++result.strays;
        return result;
    } catch (const StoreError &error) {
        if (error.kind() == StoreError::Kind::Locked)
            return Examined{.isLocked = true};
        return std::nullopt;
    } catch (const std::runtime_error &) {
        return std::nullopt;
    }
}

// A rollback journal that another program is still writing is none that waits to be undone.
bool isBeingWritten(const QString &path)
{
    sqlite3 *database = nullptr;
    sqlite3_file *file = nullptr;
    int reserved = 0;
    if (sqlite3_open_v2(enginePath(path).c_str(), &database, SQLITE_OPEN_READWRITE, nullptr) ==
            SQLITE_OK &&
        sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file) == SQLITE_OK &&
        file && file->pMethods)
        file->pMethods->xCheckReservedLock(file, &reserved);
    sqlite3_close(database);
    return reserved != 0;
}

bool isPending(const QString &path)
{
    QFile journal(path + journalSuffix);
    char first = 0;
    return journal.open(QIODevice::ReadOnly) && journal.getChar(&first) && first != 0 &&
           QFile::exists(path) && !isBeingWritten(path);
}

} // namespace

PendingRollback examineRollback(const QString &path, const FilePassword &password)
{
    if (!isPending(path))
        return PendingRollback::None;
    const QTemporaryDir folder;
    const QString asItIs = folder.filePath(u"alone.mdb"_s);
    const QString undone = folder.filePath(u"undone.mdb"_s);
    if (!QFile::copy(path, asItIs) || !QFile::copy(path, undone) ||
        !QFile::copy(path + journalSuffix, undone + journalSuffix))
        return PendingRollback::Untried;

    const auto before = examine(asItIs, password);
    const auto after = examine(undone, password);
    if (after && after->isLocked)
        return PendingRollback::Locked;
    // The store that was cut short is at most one ahead of the state it is undone to.
    const qint64 ahead = before && after ? before->changeCount - after->changeCount : 0;
    const bool isForeign = ahead != 0 && ahead != 1;
    const bool isSound =
        after && after->isWhole && !isForeign &&
        (after->strays == 0 || !before || !before->isWhole || after->strays <= before->strays);
    if (isSound)
        return PendingRollback::Sound;
    return before && before->isWhole ? PendingRollback::Foreign : PendingRollback::Damaged;
}
