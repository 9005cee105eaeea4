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
        if (!m_statement) {
            m_statement =
                std::make_unique<SQLite::Statement>(m_connection.database(), m_command.sql);
            for (int i = 0; i < m_statement->getColumnCount(); ++i)
                m_columns.emplace_back(m_statement->getColumnName(i));
        }
        bindParameters(*m_statement, m_command, values);
        readRows();
    });
    m_open = true;
}

void Recordset::readRows()
{
    // Reset in any case: a statement left half-way would hold its lock on the file.
    struct Reset
    {
        SQLite::Statement &statement;
        ~Reset() { statement.tryReset(); }
    } reset{*m_statement};

    m_values.clear();
    m_rowCount = 0;
    m_current = 0;
    m_leftOut = 0;
    const int columns = m_statement->getColumnCount();
    const int key = m_command.key ? int(columnOf(QLatin1StringView(m_command.key))) : -1;
    while (m_statement->executeStep()) {
        if (key >= 0 && !isIdentifier(columnValue(*m_statement, key))) {
            ++m_leftOut;
            continue;
        }
        for (int i = 0; i < columns; ++i)
            m_values.push_back(columnValue(*m_statement, i));
        ++m_rowCount;
    }
}

void Recordset::reopen(std::initializer_list<Value> values)
{
    close();
    open(values);
}

void Recordset::close()
{
    cancelUpdate();
    m_values.clear();
    m_rowCount = 0;
    m_current = 0;
    m_open = false;
}

bool Recordset::moveTo(QLatin1StringView column, qint32 id)
{
    const size_t at = columnOf(column);
    for (size_t row = 0; row < m_rowCount; ++row) {
        if (cell(row, at).toInt32() == id) {
            m_current = row;
            return true;
        }
    }
    return false;
}

size_t Recordset::columnOf(QLatin1StringView name) const
{
    for (size_t i = 0; i < m_columns.size(); ++i) {
        if (name.compare(QLatin1StringView(m_columns[i].c_str()), Qt::CaseInsensitive) == 0)
            return i;
    }
    throw std::logic_error(std::string("rs") + m_command.name + " has no column " +
                           name.toString().toStdString());
}

const Value &Recordset::value(QLatin1StringView column) const
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
    return m_values[m_current * m_columns.size() + at];
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

void Recordset::set(QLatin1StringView column, const Value &value)
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
    const std::string sql =
        std::string("insert into ") + m_command.table + " (" + names + ") values (" + marks + ")";
    guarded([&] {
        SQLite::Statement &statement = m_connection.prepared(sql);
        int index = 0;
        for (const Change &change : m_changes)
            bindValue(statement, ++index, change.value);
        statement.exec();
        statement.tryReset();
    });

    m_current = m_rowCount++;
    m_values.resize(m_rowCount * m_columns.size());
    for (const Change &change : m_changes)
        cell(m_current, change.column) = change.value;
    // The keys of the tables are their row numbers, whoever handed them out.
    cell(m_current, columnOf(QLatin1StringView(m_command.key))) =
        Value(qint64(m_connection.database().getLastInsertRowid()));
}

void Recordset::updateRow()
{
    std::string assignments;
    for (const Change &change : m_changes)
        assignments += (assignments.empty() ? "" : ", ") + m_columns[change.column] + " = ?";
    const std::string sql = std::string("update ") + m_command.table + " set " + assignments +
                            " where " + m_command.key + " = ?";
    const Value key = cell(m_current, columnOf(QLatin1StringView(m_command.key)));
    guarded([&] {
        SQLite::Statement &statement = m_connection.prepared(sql);
        int index = 0;
        for (const Change &change : m_changes)
            bindValue(statement, ++index, change.value);
        bindValue(statement, ++index, key);
        const int changed = statement.exec();
        statement.tryReset();
        if (changed == 0)
            throw StoreError(StoreError::Kind::Gone, "the record was deleted by another program");
    });
    for (const Change &change : m_changes)
        cell(m_current, change.column) = change.value;
}

void Recordset::cancelUpdate()
{
    m_adding = false;
    m_changes.clear();
}

void Recordset::remove()
{
    requireUpdatable();
    const Value key = value(QLatin1StringView(m_command.key));
    const std::string sql =
        std::string("delete from ") + m_command.table + " where " + m_command.key + " = ?";
    guarded([&] {
        SQLite::Statement &statement = m_connection.prepared(sql);
        bindValue(statement, 1, key);
        statement.exec();
        statement.tryReset();
    });
    cancelUpdate();
    const auto first = m_values.begin() + static_cast<std::ptrdiff_t>(m_current * m_columns.size());
    m_values.erase(first, first + static_cast<std::ptrdiff_t>(m_columns.size()));
    --m_rowCount;
}
