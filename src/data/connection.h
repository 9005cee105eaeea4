// The one connection to the database file.
#pragma once

#include "data/filepassword.h"
#include "data/storeerror.h"
#include "data/value.h"

#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Exception.h>
#include <SQLiteCpp/Statement.h>

#include <QString>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

class ChangeRecorder;

/// Runs an action of the engine and turns its exceptions into StoreError.
template<typename Action>
decltype(auto) guarded(Action action)
{
    try {
        return action();
    } catch (const SQLite::Exception &error) {
        throw StoreError(error);
    }
}

/// A path as the engine takes it: in UTF-8, with the system's separators, and for Windows in the
/// form that isn't limited to 260 letters where it is long.
std::string enginePath(const QString &path);

/// Binds one value to a parameter of a statement, counted from 1.
void bindValue(SQLite::Statement &statement, int index, const Value &value);
/// Binds all of them, in their order.
void bindValues(SQLite::Statement &statement, const std::vector<Value> &values);
/// The value of a column of the statement's current row, counted from 0.
Value columnValue(SQLite::Statement &statement, int column);

/// A prepared statement while it is used: reset on every way out of its scope. One that was left
/// half-way, by a refusal as much as by a row, would hold its lock on the file and keep the
/// connection inside a transaction that nobody commits.
class StatementUse
{
public:
    explicit StatementUse(SQLite::Statement &statement)
        : m_statement(statement)
    {
    }
    ~StatementUse() { m_statement.tryReset(); }
    StatementUse(const StatementUse &) = delete;
    StatementUse &operator=(const StatementUse &) = delete;

    SQLite::Statement &operator*() const { return m_statement; }
    SQLite::Statement *operator->() const { return &m_statement; }

private:
    SQLite::Statement &m_statement;
};

/// An open, encrypted database file. Everything committed through it is on the disk when the call
/// returns. Not copyable; used from one thread.
class Connection
{
public:
    /// Opens the journal's file for reading and writing. Throws StoreError where it is missing,
    /// is no database of this program, is damaged, can't be written, or is held by another
    /// program beyond the time-out. An existing file is not changed by opening it. A file that the
    /// user has locked takes the password and a fifth of a second, and is refused as Locked without
    /// the right one; for any other file the password stays unused.
    explicit Connection(const QString &path, const FilePassword &password = {});
    /// Makes a new, empty, encrypted file, locked where there is a password; throws StoreError
    /// where one exists already.
    static std::unique_ptr<Connection> create(const QString &path,
                                              const FilePassword &password = {});

    Connection(const Connection &) = delete;
    Connection &operator=(const Connection &) = delete;

    /// Runs statements without parameters and without rows.
    void exec(const char *sql);
    /// Runs a statement with what `bind` binds to it, durably unless within a transaction; the
    /// number of rows changed.
    template<typename Bind>
    int write(const std::string &sql, Bind bind);
    /// The same with these values for its marks.
    int write(const std::string &sql, const std::vector<Value> &values);
    /// The statement of this text, prepared once, without bindings.
    StatementUse prepared(const std::string &sql);
    SQLite::Database &database() { return *m_database; }
    /// Of the file, as it was opened.
    const QString &path() const { return m_path; }
    /// With which the file is locked; empty where it isn't.
    const FilePassword &password() const { return m_password; }
    /// Puts another file, which is locked with this password or with none, in the place of the one
    /// that is open, and opens it; an open transaction of this connection is rolled back. No result
    /// set may be reading. Throws StoreError: the file is the old one then, unless the kind is
    /// Replaced.
    void replaceFile(const QString &other, const FilePassword &password);
    bool isInTransaction() const;
    /// Another number whenever another program has stored something meanwhile.
    qint64 dataVersion();

    /// Follows every transaction from its beginning; null for none.
    void setRecorder(ChangeRecorder *recorder) { m_recorder = recorder; }
    ChangeRecorder *recorder() const { return m_recorder; }

    /// How long a statement waits for another program to let go of the file, in milliseconds.
    static constexpr int busyTimeout = 2000;

private:
    Connection() = default;
    void open(const QString &path, int flags, const FilePassword &password);
    void checkTables();
    void checkWritable(const QString &path);

    QString m_path;
    FilePassword m_password;
    std::unique_ptr<SQLite::Database> m_database;
    std::unordered_map<std::string, std::unique_ptr<SQLite::Statement>> m_prepared;
    ChangeRecorder *m_recorder = nullptr;
};

/// A transaction that holds the file for writing from its first moment, so that what it reads
/// can't change under it. Rolled back unless committed. Within another one it is a part of that:
/// the outermost alone commits, and what is refused in it is undone with the whole. Every write of
/// the store goes through here; afterwards, refused or not, no transaction is open.
class WriteTransaction
{
public:
    explicit WriteTransaction(Connection &connection);
    ~WriteTransaction();
    WriteTransaction(const WriteTransaction &) = delete;
    WriteTransaction &operator=(const WriteTransaction &) = delete;

    /// Durable when it returns. Throws StoreError; nothing of the transaction is then stored,
    /// except where the kind is Uncertain.
    void commit();

private:
    void rollBack();
    void confirmDeletedJournal();

    Connection &m_connection;
    const bool m_outermost;
    bool m_open = true;
};

template<typename Bind>
int Connection::write(const std::string &sql, Bind bind)
{
    WriteTransaction transaction(*this);
    const int changed = guarded([&] {
        const StatementUse statement = prepared(sql);
        bind(*statement);
        return statement->exec();
    });
    transaction.commit();
    return changed;
}
