#include "data/connection.h"

#include "data/changerecorder.h"
#include "data/filekey.h"
#include "data/namecollation.h"
#include "data/schema.h"
#include "data/sqlfunctions.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

#include <sqlite3.h>

#include <filesystem>

namespace {

// EXTRA also synchronizes the folder after the rollback journal is gone: without it a power
// failure could bring the journal back and undo what the window has reported as stored.
constexpr char connectionSettings[] = "PRAGMA foreign_keys=ON;"
                                      "PRAGMA journal_mode=DELETE;"
                                      "PRAGMA synchronous=EXTRA;"
                                      "PRAGMA trusted_schema=OFF;";

// Whether files can be made in it, of which on Windows only trying tells.
bool isWritable(const QString &folder)
{
#ifdef Q_OS_WIN
    return QTemporaryFile(QDir(folder).filePath(QStringLiteral("Corvana-XXXXXX.tmp"))).open();
#else
    return QFileInfo(folder).isWritable();
#endif
}

} // namespace

std::string enginePath(const QString &path)
{
    const QString native = QDir::toNativeSeparators(path);
#ifdef Q_OS_WIN
    // The rollback journal's path, longer by its suffix, must be within the limit too.
    constexpr qsizetype longest = 240;
    if (native.size() > longest) {
        const bool isShare = native.startsWith(QLatin1String("\\\\"));
        return (isShare ? "\\\\?\\UNC\\" + native.mid(2) : "\\\\?\\" + native).toStdString();
    }
#endif
    return native.toStdString();
}

void bindValue(SQLite::Statement &statement, int index, const Value &value)
{
    struct Binder
    {
        SQLite::Statement &statement;
        int index;
        void operator()(std::monostate) { statement.bind(index); }
        void operator()(qint64 whole) { statement.bind(index, static_cast<int64_t>(whole)); }
        void operator()(double number) { statement.bind(index, number); }
        void operator()(const QString &text) { statement.bind(index, text.toStdString()); }
    };
    std::visit(Binder{statement, index}, value.storage());
}

void bindValues(SQLite::Statement &statement, const std::vector<Value> &values)
{
    int index = 0;
    for (const Value &value : values)
        bindValue(statement, ++index, value);
}

Value columnValue(SQLite::Statement &statement, int column)
{
    const SQLite::Column cell = statement.getColumn(column);
    switch (cell.getType()) {
    case SQLITE_INTEGER:
        return Value(qint64(cell.getInt64()));
    case SQLITE_FLOAT:
        return Value(cell.getDouble());
    case SQLITE_TEXT:
        return Value(QString::fromUtf8(cell.getText(), cell.getBytes()));
    default:
        return {};
    }
}

Connection::Connection(const QString &path, const FilePassword &password)
{
    // The engine would take an empty file for a database without tables.
    const QFileInfo file(path);
    if (!file.isFile() || file.size() == 0)
        throw StoreError(StoreError::Kind::Damaged, "the database file is missing or empty");
    guarded([&] {
        open(path, SQLite::OPEN_READWRITE, password);
        checkTables();
        checkWritable(path);
    });
}

std::unique_ptr<Connection> Connection::create(const QString &path, const FilePassword &password)
{
    if (QFileInfo::exists(path))
        throw StoreError(StoreError::Kind::Other, "a file of this name exists already");
    std::unique_ptr<Connection> connection(new Connection);
    guarded(
        [&] { connection->open(path, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE, password); });
    return connection;
}

// The connection that there is stays where this one is refused.
void Connection::open(const QString &path, int flags, const FilePassword &password)
{
    auto database = std::make_unique<SQLite::Database>(enginePath(path), flags, busyTimeout);
    const bool isNew = (flags & SQLite::OPEN_CREATE) != 0;
    const bool isLocked =
        isNew ? !password.isEmpty() : filekey::bearsLockMark(database->getHandle());
    if (!isLocked)
        filekey::useBuiltIn(database->getHandle());
    else if (isNew)
        filekey::useForNewFile(database->getHandle(), password);
    else
        filekey::use(database->getHandle(), password);
    registerFunctions(database->getHandle());
    registerNameCollation(database->getHandle());
    database->exec(connectionSettings);
    m_path = path;
    m_password = isLocked ? password : FilePassword();
    m_database = std::move(database);
}

void Connection::replaceFile(const QString &other, const FilePassword &password)
{
    const auto native = [](const QString &path) {
        return std::filesystem::path(QString::fromStdString(enginePath(path)).toStdU16String());
    };
    m_prepared.clear();
#ifdef Q_OS_WIN
    // There, a file that is open can't be replaced. Until one is open again nothing can be read.
    m_database = std::make_unique<SQLite::Database>(":memory:", SQLite::OPEN_READWRITE);
#endif
    std::error_code error;
    // What a link to the file points to, not the link.
    std::filesystem::rename(native(other), native(QFileInfo(m_path).canonicalFilePath()), error);
    if (error) {
#ifdef Q_OS_WIN
        guarded([this] { open(m_path, SQLite::OPEN_READWRITE, m_password); });
#endif
        throw StoreError(StoreError::Kind::ReadOnly, "the file can't be replaced");
    }
    try {
        guarded([&] { open(m_path, SQLite::OPEN_READWRITE, password); });
    } catch (const StoreError &refusal) {
        throw StoreError(StoreError::Kind::Replaced, refusal.what());
    }
}

void Connection::checkTables()
{
    for (const schema::Table *table : schema::tables) {
        std::string columns;
        for (const schema::Column &column : *table)
            columns += (columns.empty() ? "" : ", ") + std::string(column.name());
        // Preparing alone tells whether the table and its columns are there.
        SQLite::Statement(*m_database, "select " + columns + " from " + table->name());
    }
    SQLite::Statement common(*m_database, "select count(*) from Common");
    if (!common.executeStep() || common.getColumn(0).getInt() != 1)
        throw StoreError(StoreError::Kind::Damaged, "table Common does not hold exactly one row");
}

void Connection::checkWritable(const QString &path)
{
    if (sqlite3_db_readonly(m_database->getHandle(), "main") != 0 ||
        !isWritable(QFileInfo(path).absolutePath()))
        throw StoreError(StoreError::Kind::ReadOnly, "the database file can't be written");
    // Takes the lock of a writer and lets it go; nothing is written.
    m_database->exec("begin immediate; rollback");
}

void Connection::exec(const char *sql)
{
    guarded([&] { m_database->exec(sql); });
}

int Connection::write(const std::string &sql, const std::vector<Value> &values)
{
    return write(sql, [&](SQLite::Statement &statement) { bindValues(statement, values); });
}

StatementUse Connection::prepared(const std::string &sql)
{
    return guarded([&] {
        auto &slot = m_prepared[sql];
        if (!slot)
            slot = std::make_unique<SQLite::Statement>(*m_database, sql);
        slot->clearBindings();
        return StatementUse(*slot);
    });
}

bool Connection::isInTransaction() const
{
    return sqlite3_get_autocommit(m_database->getHandle()) == 0;
}

qint64 Connection::dataVersion()
{
    return guarded([&] {
        const StatementUse statement = prepared("PRAGMA data_version");
        statement->executeStep();
        return qint64(statement->getColumn(0).getInt64());
    });
}

WriteTransaction::WriteTransaction(Connection &connection)
    : m_connection(connection)
    , m_outermost(!connection.isInTransaction())
{
    if (!m_outermost)
        return;
    guarded([&] { m_connection.prepared("begin immediate")->exec(); });
    if (ChangeRecorder *recorder = m_connection.recorder()) {
        try {
            recorder->begin(m_connection.database().getHandle());
        } catch (...) {
            rollBack();
            throw;
        }
    }
}

WriteTransaction::~WriteTransaction()
{
    if (m_open && m_outermost)
        rollBack();
}

// The engine may have rolled back by itself: then there is nothing left to do. What an error of the
// disk kept it from undoing it undoes at the next look at the file, which is taken here, so that no
// rollback journal stays behind.
void WriteTransaction::rollBack()
{
    m_open = false;
    if (ChangeRecorder *recorder = m_connection.recorder())
        recorder->forget();
    m_connection.database().tryExec("rollback");
    m_connection.database().tryExec("select count(*) from Common");
}

void WriteTransaction::commit()
{
    if (!m_outermost)
        return;
    ChangeRecorder *const recorder = m_connection.recorder();
    if (recorder)
        recorder->capture(); // before another program can change the rows again
    try {
        guarded([&] { m_connection.prepared("commit")->exec(); });
        m_open = false;
        if (recorder)
            recorder->keep();
    } catch (const StoreError &error) {
        if (recorder && error.kind() == StoreError::Kind::Uncertain)
            recorder->keep();
        rollBack();
        if (error.kind() != StoreError::Kind::Uncertain)
            throw;
        confirmDeletedJournal();
    }
}

// The rollback journal is deleted, so the changes stand, but its folder could not be synchronized:
// a power failure might bring it back. A further transaction replaces it and synchronizes again.
void WriteTransaction::confirmDeletedJournal()
{
    try {
        m_connection.exec("begin immediate; update Common set weight = weight; commit");
    } catch (const StoreError &) {
        rollBack();
        throw StoreError(StoreError::Kind::Uncertain, "the folder can't be synchronized");
    }
}
