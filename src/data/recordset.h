// The small updatable result set of a named command.
#pragma once

#include "data/commands.h"
#include "data/connection.h"

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

/// Binds the values to the command's parameters, in their declared order and types.
void bindParameters(SQLite::Statement &statement, const Command &command,
                    std::initializer_list<Value> values);

/// The rows of a command, read when it is opened and walked from the first to end-of-file; no
/// lock is held on the file while a result set stays open. Column names are case-insensitive.
/// Changes are gathered by set() and written by update() in one durable statement, which writes
/// only the columns that were set. Everything that reaches the engine throws StoreError.
class Recordset
{
public:
    Recordset(Connection &connection, const Command &command);

    const Command &command() const { return m_command; }

    bool isOpen() const { return m_open; }
    /// Runs the command and stands on its first row. A result set can be open only once: throws
    /// std::logic_error where it is.
    void open(std::initializer_list<Value> values = {});
    /// Closes the result set if it is open and runs its command anew.
    void reopen(std::initializer_list<Value> values = {});
    /// reopen() for what is only shown: a damaged page keeps the rows that were read before it.
    void reopenReadable(std::initializer_list<Value> values = {});
    /// Forgets the rows and any pending change. Harmless on a closed one.
    void close();

    /// The rows as they were read or last written, to be put back by restore() when a transaction
    /// that update() was a part of has been undone. restore() discards a pending change.
    struct Rows
    {
        std::vector<Value> values; ///< row by row
        size_t count = 0;
        size_t current = 0;
    };
    const Rows &rows() const { return m_rows; }
    void restore(Rows rows);

    bool isEof() const { return m_rows.current >= m_rows.count; }
    size_t rowCount() const { return m_rows.count; }
    /// Rows of the last opening that are not among these, because their key is beyond 32 bits:
    /// nothing in the program could refer to them. One of them must not keep the others away.
    size_t leftOut() const { return m_leftOut; }
    /// Whether the last opening came to a damaged page, behind which there may be more rows.
    bool isCutShort() const { return m_cutShort; }
    void moveFirst() { m_rows.current = 0; }
    void moveNext() { ++m_rows.current; }
    /// Stands on the first row whose column holds this whole number; false, and the position
    /// unchanged, where there is none.
    bool moveTo(const schema::Column &column, qint32 id);

    /// A value of the current row; throws std::logic_error for an unknown column or behind the
    /// last row. While a change is pending, the value set last.
    const Value &value(const schema::Column &column) const;
    bool isNull(const schema::Column &column) const { return value(column).isNull(); }
    qint32 integer(const schema::Column &column) const { return value(column).toInt32(); }
    double number(const schema::Column &column) const { return value(column).toDouble(); }
    Currency currency(const schema::Column &column) const { return value(column).toCurrency(); }
    QDate date(const schema::Column &column) const { return value(column).toDate(); }
    QTime time(const schema::Column &column) const { return value(column).toTime(); }
    QString text(const schema::Column &column) const { return value(column).toText(); }

    /// Begins a new record behind the rows; it becomes the current one when it is updated.
    void addNew();
    /// Sets a column of the new or current record; nothing is written yet.
    void set(const schema::Column &column, const Value &value);
    /// Writes the pending change, of a row only while the columns to write are as they were read.
    /// On StoreError it stays pending: cancelUpdate() discards it.
    void update();
    void cancelUpdate();
    /// Throws the StoreError with which update() would refuse a row that is gone or changed.
    void requireUnchanged();
    /// Deletes the current record from its table; end-of-file where it was the only one.
    void remove();

private:
    struct Change
    {
        size_t column;
        Value value;
    };

    size_t columnOf(const schema::Column &column) const;
    Value &cell(size_t row, size_t column)
    {
        return m_rows.values[row * m_columns.size() + column];
    }
    void readRows(SQLite::Statement &statement);
    void insertRow();
    void updateRow();
    std::string unchangedRow(std::vector<Value> &values);
    bool finds(const std::string &condition, const std::vector<Value> &values);
    [[noreturn]] void throwMissing();
    Value currentKey();
    void requireUpdatable() const;

    Connection &m_connection;
    const Command &m_command;
    std::vector<std::string> m_columns; ///< known from the first opening on
    Rows m_rows;
    size_t m_leftOut = 0;
    bool m_cutShort = false;
    bool m_open = false;
    bool m_adding = false;
    std::vector<Change> m_changes;
};
