#include "lock/changepassword.h"

#include "backup/integrity.h"
#include "data/connection.h"
#include "session/synchronizedfolder.h"

#include <QCryptographicHash>
#include <QFileInfo>
#include <QScopeGuard>

#include <sqlite3.h>

#include <array>

namespace {

// Beside what a link to the file points to.
QString unfinishedPath(const QString &path)
{
    return QFileInfo(path).canonicalFilePath() + QStringLiteral("-changing");
}

/// Calls with each of the schema's entries: the type, the name and the statement that makes it.
template<typename Call>
void forEachEntry(Connection &connection, const char *condition, Call call)
{
    SQLite::Statement entries(connection.database(),
                              std::string("select type, name, sql from sqlite_master where ") +
                                  condition + " order by type, name");
    while (entries.executeStep())
        call(entries.getColumn(1).getString(), entries.getColumn(2).getString());
}

constexpr char ownTables[] = "type = 'table' and name not like 'sqlite~_%' escape '~'";
constexpr char onTables[] = "type <> 'table' and sql is not null";
// In which the engine keeps what was given out last.
constexpr char sequences[] = "name = 'sqlite_sequence'";

std::string quoted(const std::string &name)
{
    return QString::fromStdString(name)
        .replace(u'"', QLatin1String("\"\""))
        .prepend(u'"')
        .append(u'"')
        .toStdString();
}

// As it is stored, whatever it is.
void bindCell(SQLite::Statement &statement, int index, const SQLite::Column &cell)
{
    switch (cell.getType()) {
    case SQLITE_INTEGER:
        return statement.bind(index, cell.getInt64());
    case SQLITE_FLOAT:
        return statement.bind(index, cell.getDouble());
    case SQLITE_TEXT:
        return statement.bind(index, cell.getString());
    case SQLITE_BLOB:
        return statement.bind(index, cell.getBlob(), cell.getBytes());
    default:
        return statement.bind(index);
    }
}

void copyRows(Connection &from, Connection &to, const std::string &table)
{
    SQLite::Statement rows(from.database(), "select * from " + quoted(table));
    std::string marks = "?";
    for (int i = 1; i < rows.getColumnCount(); ++i)
        marks += ", ?";
    SQLite::Statement insert(to.database(),
                             "insert into " + quoted(table) + " values (" + marks + ")");
    while (rows.executeStep()) {
        for (int i = 0; i < rows.getColumnCount(); ++i)
            bindCell(insert, i + 1, rows.getColumn(i));
        insert.exec();
        insert.reset();
    }
}

// What is odd in the rows is copied, too; what belongs to a table only once its rows are there, or
// its triggers would run.
void copyContents(Connection &from, Connection &to)
{
    to.exec("PRAGMA journal_mode=OFF; PRAGMA foreign_keys=OFF; PRAGMA ignore_check_constraints=ON;"
            "begin");
    const auto make = [&](const std::string &, const std::string &sql) { to.database().exec(sql); };
    const auto fill = [&](const std::string &name, const std::string &) {
        copyRows(from, to, name);
    };
    forEachEntry(from, ownTables, make);
    forEachEntry(from, ownTables, fill);
    forEachEntry(from, sequences, [&](const std::string &name, const std::string &) {
        to.exec("delete from sqlite_sequence");
        copyRows(from, to, name);
    });
    forEachEntry(from, onTables, make);
    to.exec("commit");
}

void addRows(Connection &connection, const std::string &table, QCryptographicHash &sum)
{
    SQLite::Statement rows(connection.database(), "select * from " + quoted(table));
    while (rows.executeStep()) {
        for (int i = 0; i < rows.getColumnCount(); ++i) {
            const SQLite::Column cell = rows.getColumn(i);
            const int type = cell.getType();
            const double number = type == SQLITE_FLOAT ? cell.getDouble() : 0;
            const qint64 size = cell.getBytes(); // converts, so the number is read before
            const auto add = [&sum](const auto &value) {
                sum.addData({reinterpret_cast<const char *>(&value), qsizetype(sizeof value)});
            };
            add(type);
            add(number);
            add(size);
            sum.addData({static_cast<const char *>(cell.getBlob()), qsizetype(size)});
        }
    }
}

/// A sum over the schema and all rows.
QByteArray sumOf(Connection &connection)
{
    return guarded([&] {
        QCryptographicHash sum(QCryptographicHash::Sha256);
        const auto add = [&](const std::string &name, const std::string &sql) {
            sum.addData(QByteArray::fromStdString(name + '\n' + sql + '\n'));
        };
        for (const char *condition : {ownTables, onTables, sequences})
            forEachEntry(connection, condition, add);
        for (const char *condition : {ownTables, sequences})
            forEachEntry(connection, condition, [&](const std::string &name, const std::string &) {
                addRows(connection, name, sum);
            });
        return sum.result();
    });
}

// Read again from the disk, with the password that will be asked for.
void verifyCopy(const QString &path, const FilePassword &password, const QByteArray &sum)
{
    Connection copy(path, password);
    if (!isWhole(copy) || sumOf(copy) != sum)
        throw StoreError(StoreError::Kind::Other, "the copy does not hold what the file holds");
}

} // namespace

void changePassword(Connection &journal, const FilePassword &password)
{
    const QString unfinished = unfinishedPath(journal.path());
    removeUnfinishedChange(journal.path());
    const auto remove = qScopeGuard([&] { QFile::remove(unfinished); });
    // Until the new file is in its place nobody else writes into the old one.
    journal.exec("begin exclusive");
    const auto rollBack = qScopeGuard([&] { journal.database().tryExec("rollback"); });
    if (!isWhole(journal))
        throw StoreError(StoreError::Kind::Damaged, "the file is damaged");
    {
        const auto copy = Connection::create(unfinished, password);
        // Nobody else may read it who can't read the old one.
        QFile::setPermissions(unfinished, QFile::permissions(journal.path()));
        guarded([&] { copyContents(journal, *copy); });
    }
    verifyCopy(unfinished, password, sumOf(journal));
    journal.replaceFile(unfinished, password);
    if (!synchronizeFolder(QFileInfo(unfinished).absolutePath()))
        throw StoreError(StoreError::Kind::Uncertain, "the folder can't be synchronized");
}

void removeUnfinishedChange(const QString &path)
{
    QFile::remove(unfinishedPath(path));
}
