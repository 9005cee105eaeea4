#include "exchange/importnames.h"

#include "data/namecollation.h"

#include <algorithm>

CatalogueNames::CatalogueNames(Connection &connection, const schema::Table &table)
{
    std::string columns = table.key().name();
    int nameAt = 0;
    int at = 0;
    for (const schema::Column &column : table) {
        if (at > 0)
            columns += std::string(", ") + column.name();
        if (qstrcmp(column.name(), "Name") == 0)
            nameAt = at;
        ++at;
    }
    guarded([&] {
        SQLite::Statement rows(connection.database(),
                               "select " + columns + " from " + table.name());
        while (rows.executeStep()) {
            Entry entry;
            entry.id = rows.getColumn(0).getInt64();
            entry.name = columnValue(rows, nameAt).toText();
            for (int i = 1; i < at; ++i)
                entry.values.push_back(columnValue(rows, i));
            m_places.insert(nameKey(entry.name), m_entries.size());
            m_entries.push_back(std::move(entry));
        }
    });
}

std::optional<size_t> CatalogueNames::find(const QString &name) const
{
    const auto found = m_places.constFind(nameKey(name));
    return found == m_places.cend() ? std::nullopt : std::optional(*found);
}

size_t CatalogueNames::add(const QString &name, std::vector<Value> values)
{
    m_places.insert(nameKey(name), m_entries.size());
    m_entries.push_back({name, 0, std::move(values)});
    return m_entries.size() - 1;
}

QString CatalogueNames::freeName(const QString &name)
{
    int &number = m_numbers[nameKey(name)];
    for (number = std::max(number + 1, 2);; ++number) {
        QString numbered = QStringLiteral("%1 (%2)").arg(name).arg(number);
        if (!find(numbered))
            return numbered;
    }
}

void CatalogueNames::redirect(const QString &name, size_t entry)
{
    m_places[nameKey(name)] = entry;
}
