#include "exchange/importstore.h"

#include "data/identifiers.h"
#include "exchange/importtext.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class ImportStoreTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportStoreTexts)
};

std::string insertionInto(const schema::Table &table)
{
    std::string columns;
    std::string marks;
    for (const schema::Column &column : table) {
        columns += (columns.empty() ? "" : ", ") + std::string(column.name());
        marks += marks.empty() ? "?" : ", ?";
    }
    return std::string("insert into ") + table.name() + " (" + columns + ") values (" + marks + ")";
}

std::string updateOf(const schema::Table &table)
{
    std::string columns;
    for (const schema::Column &column : table) {
        if (qstrcmp(column.name(), table.key().name()) != 0)
            columns += (columns.empty() ? "" : ", ") + std::string(column.name()) + " = ?";
    }
    return std::string("update ") + table.name() + " set " + columns + " where " +
           table.key().name() + " = ?";
}

class ImportStore
{
public:
    ImportStore(Session &session, const std::vector<ImportFile> &files, ImportPlan &plan,
                const ImportProgress &progress)
        : m_data(session.data())
        , m_files(files)
        , m_plan(plan)
        , m_progress(progress)
    {
        for (const FilePlan &file : plan.files)
            m_total += file.records.size();
    }

    /// Before the recording begins.
    void takeIdentifiers()
    {
        for (const ImportTable &table : importTables()) {
            int added = 0;
            forEachPlan(table, [&](const FilePlan &plan) { added += plan.added; });
            if (added > 0 && table.kind >= ImportKind::MealsConsumed)
                m_identifiers[table.table] = newIdentifiers(m_data, *table.table, added);
        }
    }

    void store()
    {
        for (const ImportTable &table : importTables()) {
            if (table.kind == ImportKind::MealCategories)
                storeCategoriesOfMeals();
            forEachPlan(table, [&](FilePlan &plan) {
                for (PlannedRecord &record : plan.records)
                    store(table, record);
            });
        }
    }

private:
    template<typename Call>
    void forEachPlan(const ImportTable &table, Call call)
    {
        for (size_t i = 0; i < m_files.size(); ++i) {
            if (m_files[i].kind == table.kind)
                call(m_plan.files[i]);
        }
    }

    // Those without a line of their own.
    void storeCategoriesOfMeals()
    {
        std::vector<bool> hasLine(m_plan.categories.entries().size());
        forEachPlan(importTable(ImportKind::MealCategories), [&](const FilePlan &plan) {
            for (const PlannedRecord &record : plan.records)
                hasLine[*record.self] = true;
        });
        for (size_t i = 0; i < hasLine.size(); ++i) {
            CatalogueNames::Entry &category = m_plan.categories[i];
            if (category.id == 0 && !hasLine[i])
                category.id = insert(schema::MealCategory::table, {Value(), Value(category.name)});
        }
    }

    void store(const ImportTable &table, PlannedRecord &record)
    {
        tell();
        if (record.subject)
            record.values.front() = Value(namesOfSubject(table.kind)[*record.subject].id);
        if (!record.isNew) {
            const qint64 id = record.self ? m_plan.namesOf(table.kind)[*record.self].id : record.id;
            record.values.push_back(Value(id));
            m_data.Con.write(updateOf(*table.table), record.values);
            return;
        }
        const auto identifier = m_identifiers.find(table.table);
        const Value key = identifier == m_identifiers.end() ? Value() : Value(identifier->second++);
        std::vector<Value> values = {key};
        values.insert(values.end(), record.values.begin(), record.values.end());
        const qint64 id = insert(*table.table, values);
        if (record.self)
            m_plan.namesOf(table.kind)[*record.self].id = id;
    }

    qint64 insert(const schema::Table &table, const std::vector<Value> &values)
    {
        m_data.Con.write(insertionInto(table), values);
        return m_data.Con.database().getLastInsertRowid();
    }

    CatalogueNames &namesOfSubject(ImportKind kind)
    {
        return kind == ImportKind::Meals ? m_plan.categories : m_plan.namesOf(kind);
    }

    void tell()
    {
        constexpr size_t step = 200;
        if (++m_done % step == 0 && m_progress && !m_progress(double(m_done) / double(m_total)))
            throw ImportCancelled();
    }

    deData &m_data;
    const std::vector<ImportFile> &m_files;
    ImportPlan &m_plan;
    const ImportProgress &m_progress;
    std::unordered_map<const schema::Table *, int> m_identifiers; ///< the next ones
    size_t m_total = 0;
    size_t m_done = 0;
};

void requireVersion(Connection &connection, qint64 version)
{
    if (connection.dataVersion() != version)
        throw ImportError(ImportStoreTexts::tr(
            "Another program has changed the journal meanwhile. The numbers shown now are those "
            "with its changes: please look at them again."));
}

} // namespace

void storeImport(Session &session, const std::vector<ImportFile> &files, ImportPlan plan,
                 const QString &description, const ImportProgress &progress)
{
    Connection &connection = session.data().Con;
    ImportStore steps(session, files, plan, progress);
    {
        WriteTransaction transaction(connection);
        requireVersion(connection, plan.dataVersion);
        steps.takeIdentifiers();
        transaction.commit();
    }
    // Read anew: a commit that the disk made doubtful gives the file another version, too.
    const qint64 version = connection.dataVersion();
    const UndoHistory::Recording recording(session.history(), description, session.currentDate());
    WriteTransaction transaction(connection);
    requireVersion(connection, version);
    steps.store();
    transaction.commit();
}
