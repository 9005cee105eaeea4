#include "backup/backupfile.h"

#include "backup/backuperror.h"
#include "backup/integrity.h"
#include "data/pendingrollback.h"
#include "data/schema.h"

#include <QDateTime>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals;

namespace {

const QString rollbackSuffix = u"-journal"_s;

/// What tells that somebody has written meanwhile.
struct FileState
{
    qint64 size;
    QDateTime modified;
    qint64 rollbackSize;

    bool operator==(const FileState &) const = default;
};

FileState stateOf(const QString &path)
{
    const QFileInfo file(path);
    return {file.size(), file.lastModified(), QFileInfo(path + rollbackSuffix).size()};
}

// To be asked where no store waits to be undone: what a rollback journal stands for then goes on.
bool isStoreGoingOn(const QString &path)
{
    QFile rollback(path + rollbackSuffix);
    char first = 0;
    return rollback.open(QIODevice::ReadOnly) && rollback.getChar(&first) && first != 0;
}

void copyForTrying(const QString &from, const QString &to)
{
    if (!QFile::copy(from, to))
        throw BackupError(BackupError::tr("There is no room for a copy of it in the folder for "
                                          "temporary files, on which it is tried."));
    QFile::setPermissions(to, QFile::ReadOwner | QFile::WriteOwner); // a medium's may be narrower
}

QStringList textsOf(Connection &connection, const std::string &sql, int column)
{
    QStringList texts;
    SQLite::Statement statement(connection.database(), sql);
    while (statement.executeStep())
        texts << QString::fromUtf8(statement.getColumn(column).getText()).toLower();
    texts.sort();
    return texts;
}

QString lower(const char *name)
{
    return QString::fromLatin1(name).toLower();
}

qint64 numberOf(Connection &connection, const std::string &sql)
{
    return guarded([&] {
        SQLite::Statement statement(connection.database(), sql);
        statement.executeStep();
        return qint64(statement.getColumn(0).getInt64());
    });
}

qint64 countOf(Connection &connection, const schema::Table &table)
{
    return numberOf(connection, std::string("select count(*) from ") + table.name());
}

} // namespace

BackupFile::BackupFile(const QString &path, const FilePassword &password)
{
    const QFileInfo file(path);
    if (!file.isFile() || file.size() == 0)
        throw BackupError(BackupError::tr("The file is missing or empty."));
    if (!QFile(path).open(QIODevice::ReadOnly))
        throw BackupError(BackupError::tr("The file can't be read."));
    copy(path, password);
    open(password);
    guarded([this] {
        requireKnownTables();
        requireWhole();
    });
}

// What a store that was cut short has left beside it is taken along where it belongs to it, and
// undone in the copy.
void BackupFile::copy(const QString &path, const FilePassword &password)
{
    const FileState before = stateOf(path);
    const QString copied = m_folder.filePath(u"Corvana.mdb"_s);
    switch (examineRollback(path, password)) {
    case PendingRollback::None:
        if (isStoreGoingOn(path))
            throw StoreError(StoreError::Kind::Busy, "the file is being written");
        copyForTrying(path, copied);
        break;
    case PendingRollback::Sound:
        copyForTrying(path, copied);
        copyForTrying(path + rollbackSuffix, copied + rollbackSuffix);
        break;
    case PendingRollback::Foreign:
        throw BackupError(
            BackupError::tr("The file %1 beside it was left by a store that was cut short, but not "
                            "in this file. "
                            "Copy the file alone into another folder and restore it from there.")
                .arg(QFileInfo(path).fileName() + rollbackSuffix));
    case PendingRollback::Damaged:
        throw BackupError(BackupError::tr("It is damaged: a store was cut short in it and can't be "
                                          "undone."));
    case PendingRollback::Locked:
        throw StoreError(StoreError::Kind::Locked, "the file is locked with another password");
    case PendingRollback::Untried:
        throw BackupError(BackupError::tr("There is no room for a copy of it in the folder for "
                                          "temporary files, on which it is tried."));
    }
    if (stateOf(path) != before)
        throw StoreError(StoreError::Kind::Busy, "the file was written meanwhile");
}

void BackupFile::open(const FilePassword &password)
{
    try {
        m_connection = std::make_unique<Connection>(m_folder.filePath(u"Corvana.mdb"_s), password);
    } catch (const StoreError &error) {
        if (error.kind() == StoreError::Kind::Damaged)
            throw BackupError(BackupError::tr(
                "It is no journal of this program, has another password, or is damaged."));
        if (error.kind() == StoreError::Kind::Other)
            throw BackupError(BackupError::tr("It is no journal of this program: a table or a "
                                              "column is missing."));
        throw;
    }
}

// That those which the program needs are there has been found out by opening it.
void BackupFile::requireKnownTables()
{
    QStringList names;
    bool isKnown = true;
    for (const schema::Table *table : schema::tables) {
        names << lower(table->name());
        QStringList columns;
        for (const schema::Column &column : *table)
            columns << lower(column.name());
        columns.sort();
        isKnown = isKnown &&
                  columns == textsOf(*m_connection,
                                     std::string("PRAGMA table_xinfo(") + table->name() + ")", 1);
    }
    names.sort();
    // The engine's own begin with its name.
    isKnown = isKnown && names == textsOf(*m_connection,
                                          "select name from sqlite_master where type = 'table'"
                                          " and name not like 'sqlite~_%' escape '~'",
                                          0);
    if (!isKnown)
        throw BackupError(BackupError::tr("It was written by a newer program: it has tables or "
                                          "columns that are unknown here."));
}

void BackupFile::requireWhole()
{
    bool isSound = false;
    try {
        isSound = isWhole(*m_connection);
    } catch (const StoreError &error) {
        if (error.kind() != StoreError::Kind::Damaged)
            throw;
    }
    if (!isSound)
        throw BackupError(BackupError::tr("It is damaged."));
    SQLite::Statement references(m_connection->database(), "PRAGMA foreign_key_check");
    if (references.executeStep())
        throw BackupError(
            BackupError::tr("It is not whole: entries in it refer to records that are missing."));
}

BackupContents BackupFile::contents()
{
    const auto count = [this](const schema::Table &table) { return countOf(*m_connection, table); };
    BackupContents contents{{},
                            {},
                            count(schema::MealConsume::table),
                            count(schema::ExercisePerform::table),
                            count(schema::Body::table),
                            count(schema::UserNote::table),
                            count(schema::MealCategory::table),
                            count(schema::Meal::table),
                            count(schema::Exercise::table)};
    for (const char *days :
         {"ConsumeDate from MealConsume", "PerformDate from ExercisePerform",
          "DateMeasured from Body", "DateFrom from UserNote", "DateTo from UserNote"}) {
        for (const char *end : {"asc", "desc"}) {
            SQLite::Statement statement(m_connection->database(), std::string("select ") + days +
                                                                      " order by 1 " + end +
                                                                      " limit 1");
            if (!guarded([&] { return statement.executeStep(); }))
                continue;
            const QDate day = columnValue(statement, 0).toDate();
            if (!day.isValid())
                continue;
            contents.from = contents.from.isValid() ? std::min(contents.from, day) : day;
            contents.to = contents.to.isValid() ? std::max(contents.to, day) : day;
        }
    }
    return contents;
}
