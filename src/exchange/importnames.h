// The names of a catalogue while records are imported.
#pragma once

#include "data/connection.h"
#include "data/schema.h"

#include <QHash>

#include <optional>

/// Records that are in the journal and those that come in, found by name as the journal compares
/// them.
class CatalogueNames
{
public:
    struct Entry
    {
        QString name;
        qint64 id = 0;             ///< 0 until it is stored
        std::vector<Value> values; ///< of its table's columns but the key
    };

    /// Empty, of no catalogue.
    CatalogueNames() = default;
    /// Reads those of the journal. Throws StoreError.
    CatalogueNames(Connection &connection, const schema::Table &table);

    std::optional<size_t> find(const QString &name) const;
    /// A new one, which must not be there.
    size_t add(const QString &name, std::vector<Value> values = {});
    /// The name with the least number behind it that nothing is called by.
    QString freeName(const QString &name);
    /// From now on, this name means that entry.
    void redirect(const QString &name, size_t entry);

    Entry &operator[](size_t entry) { return m_entries.at(entry); }
    const Entry &operator[](size_t entry) const { return m_entries.at(entry); }
    const std::vector<Entry> &entries() const { return m_entries; }

private:
    QHash<QString, size_t> m_places; ///< by nameKey()
    QHash<QString, int> m_numbers;   ///< given out behind a name last
    std::vector<Entry> m_entries;
};
