#include "data/recordset.h"

#include <stdexcept>

namespace {

Value converted(const Value &value, ParameterType type)
{
    if (value.isNull())
        return value;
    switch (type) {
    case ParameterType::Integer:
    case ParameterType::Date:
        return Value(value.toInt32());
    case ParameterType::Single:
        return Value(static_cast<float>(value.toDouble()));
    case ParameterType::Currency:
        return Value(value.toCurrency());
    case ParameterType::Text:
        return Value(value.toText());
    case ParameterType::None:
        break;
    }
    return value;
}

bool isIdentifier(const Value &value)
{
    const auto *whole = std::get_if<qint64>(&value.storage());
    return whole && *whole == qint64(qint32(*whole));
}

} // namespace

void bindParameters(SQLite::Statement &statement, const Command &command,
                    std::initializer_list<Value> values)
{
    auto parameter = command.parameters.begin();
    for (const Value &value : values) {
        if (parameter == command.parameters.end() || !parameter->name)
            throw std::logic_error(std::string(command.name) + " has fewer parameters");
        bindValue(statement, statement.getIndex(parameter->name),
                  converted(value, parameter->type));
        ++parameter;
    }
    if (parameter != command.parameters.end() && parameter->name)
        throw std::logic_error(std::string(command.name) + " has more parameters");
}

Recordset::Recordset(Connection &connection, const Command &command)
    : m_connection(connection)
    , m_command(command)
{
}

void Recordset::open(std::initializer_list<Value> values)
{
    if (m_open)
        throw std::logic_error(std::string("rs") + m_command.name + " is open already");
    guarded([&] {
        const StatementUse statement = m_connection.prepared(m_command.sql);
        if (m_columns.empty()) {
            for (int i = 0; i < statement->getColumnCount(); ++i)
                m_columns.emplace_back(statement->getColumnName(i));
        }
        bindParameters(*statement, m_command, values);
        readRows(*statement);
    });
    m_open = true;
}

void Recordset::readRows(SQLite::Statement &statement)
{
    m_rows = {};
    m_leftOut = 0;
    m_cutShort = false;
    const int columns = statement.getColumnCount();
    const int key = m_command.identifier ? int(columnOf(*m_command.identifier)) : -1;
    while (statement.executeStep()) {
        if (key >= 0 && !isIdentifier(columnValue(statement, key))) {
            ++m_leftOut;
            continue;
        }
        for (int i = 0; i < columns; ++i)
            m_rows.values.push_back(columnValue(statement, i));
        ++m_rows.count;
    }
}

void Recordset::reopen(std::initializer_list<Value> values)
{
    close();
    open(values);
}

void Recordset::reopenReadable(std::initializer_list<Value> values)
{
    try {
        reopen(values);
    } catch (const StoreError &error) {
        if (error.kind() != StoreError::Kind::Damaged)
            throw;
        m_open = true;
        m_cutShort = true;
    }
}

void Recordset::close()
{
    cancelUpdate();
    m_rows = {};
    m_open = false;
}

bool Recordset::moveTo(const schema::Column &column, qint32 id)
{
    const size_t at = columnOf(column);
    for (size_t row = 0; row < m_rows.count; ++row) {
        if (cell(row, at).toInt32() == id) {
            m_rows.current = row;
            return true;
        }
    }
    return false;
}

size_t Recordset::columnOf(const schema::Column &column) const
{
    for (size_t i = 0; i < m_columns.size(); ++i) {
        if (qstricmp(m_columns[i].c_str(), column.name()) == 0)
            return i;
    }
    throw std::logic_error(std::string("rs") + m_command.name + " has no column " + column.name());
}

const Value &Recordset::value(const schema::Column &column) const
{
    const size_t at = columnOf(column);
    for (const Change &change : m_changes) {
        if (change.column == at)
            return change.value;
    }
    if (m_adding) {
        static const Value null;
        return null;
    }
    if (!m_open || isEof())
        throw std::logic_error(std::string("rs") + m_command.name + " has no current row");
    return m_rows.values[m_rows.current * m_columns.size() + at];
}

void Recordset::requireUpdatable() const
{
    if (!m_command.table || !m_open)
        throw std::logic_error(std::string("rs") + m_command.name + " can't be written");
}

void Recordset::addNew()
{
    requireUpdatable();
    cancelUpdate();
    m_adding = true;
}

void Recordset::set(const schema::Column &column, const Value &value)
{
    requireUpdatable();
    if (!m_adding && isEof())
        throw std::logic_error(std::string("rs") + m_command.name + " has no current row");
    const size_t at = columnOf(column);
    for (Change &change : m_changes) {
        if (change.column == at) {
            change.value = value;
            return;
        }
    }
    m_changes.push_back({at, value});
}

void Recordset::update()
{
    requireUpdatable();
    if (m_adding)
        insertRow();
    else if (!m_changes.empty())
        updateRow();
    m_adding = false;
    m_changes.clear();
}

void Recordset::insertRow()
{
    std::string names;
    std::string marks;
    for (const Change &change : m_changes) {
        names += (names.empty() ? "" : ", ") + m_columns[change.column];
        marks += marks.empty() ? "?" : ", ?";
    }
    const std::string sql = std::string("insert into ") + m_command.table->name() + " (" + names +
                            ") values (" + marks + ")";
    std::vector<Value> values;
    for (const Change &change : m_changes)
        values.push_back(change.value);
    m_connection.write(sql, values);

    m_rows.current = m_rows.count++;
    m_rows.values.resize(m_rows.count * m_columns.size());
    for (const Change &change : m_changes)
        cell(m_rows.current, change.column) = change.value;
    // The keys of the tables are their row numbers, whoever handed them out.
    cell(m_rows.current, columnOf(m_command.table->key())) =
        Value(qint64(m_connection.database().getLastInsertRowid()));
}

void Recordset::updateRow()
{
    std::string assignments;
    std::vector<Value> values;
    for (const Change &change : m_changes) {
        assignments += (assignments.empty() ? "" : ", ") + m_columns[change.column] + " = ?";
        values.push_back(change.value);
    }
    const std::string sql = std::string("update ") + m_command.table->name() + " set " +
                            assignments + unchangedRow(values);
    if (m_connection.write(sql, values) == 0)
        throwMissing();
    for (const Change &change : m_changes)
        cell(m_rows.current, change.column) = change.value;
}

// The condition that finds the current row while what is to be written in it is as it was read;
// the values that it compares with go behind the others.
std::string Recordset::unchangedRow(std::vector<Value> &values)
{
    std::string condition = std::string(" where ") + m_command.table->key().name() + " = ?";
    values.push_back(currentKey());
    for (const Change &change : m_changes) {
        condition += " and " + m_columns[change.column] + " is ?";
        values.push_back(cell(m_rows.current, change.column));
    }
    return condition;
}

bool Recordset::finds(const std::string &condition, const std::vector<Value> &values)
{
    return guarded([&] {
        const StatementUse statement = m_connection.prepared(std::string("select 1 from ") +
                                                             m_command.table->name() + condition);
        bindValues(*statement, values);
        return statement->executeStep();
    });
}

void Recordset::requireUnchanged()
{
    requireUpdatable();
    std::vector<Value> values;
    if (!m_adding && !finds(unchangedRow(values), values))
        throwMissing();
}

// Either the row is gone, or it is no longer the one that was read.
void Recordset::throwMissing()
{
    if (finds(std::string(" where ") + m_command.table->key().name() + " = ?", {currentKey()}))
        throw StoreError(StoreError::Kind::Changed, "another program has changed the record");
    throw StoreError(StoreError::Kind::Gone, "the record has been deleted");
}

Value Recordset::currentKey()
{
    return cell(m_rows.current, columnOf(m_command.table->key()));
}

void Recordset::cancelUpdate()
{
    m_adding = false;
    m_changes.clear();
}

void Recordset::restore(Rows rows)
{
    cancelUpdate();
    m_rows = std::move(rows);
}

void Recordset::remove()
{
    requireUpdatable();
    const Value key = value(m_command.table->key());
    const std::string sql = std::string("delete from ") + m_command.table->name() + " where " +
                            m_command.table->key().name() + " = ?";
    m_connection.write(sql, {key});
    cancelUpdate();
    const auto first =
        m_rows.values.begin() + static_cast<std::ptrdiff_t>(m_rows.current * m_columns.size());
    m_rows.values.erase(first, first + static_cast<std::ptrdiff_t>(m_columns.size()));
    --m_rows.count;
}
