#include "exchange/importplan.h"

#include "data/identifiers.h"
#include "exchange/importrecords.h"
#include "exchange/importrow.h"

#include <QCoreApplication>

#include <algorithm>
#include <numeric>

namespace {

class ImportPlanTexts
{
    Q_DECLARE_TR_FUNCTIONS(ImportPlanTexts)
};

/// Tells how far it is, every few hundred lines.
class LineTally
{
public:
    LineTally(const std::vector<ImportFile> &files, const std::function<void(double)> &progress)
        : m_progress(progress)
    {
        for (const ImportFile &file : files)
            m_total += file.records.size();
    }
    void advance()
    {
        constexpr size_t step = 500;
        if (++m_done % step == 0 && m_progress)
            m_progress(double(m_done) / double(m_total));
    }

private:
    const std::function<void(double)> &m_progress;
    size_t m_total = 0;
    size_t m_done = 0;
};

void planRecord(RecordPlanner &planner, const ImportFile &file, const CsvRecord &record,
                FilePlan &plan)
{
    if (!record.fault.isEmpty())
        throw ImportRowFault(record.fault);
    const qsizetype columns = file.headers.size();
    // Some programs end every line with a separator.
    const bool isLonger =
        std::any_of(record.cells.begin() + std::min(record.cells.size(), columns),
                    record.cells.end(), [](const QString &cell) { return !cell.isEmpty(); });
    if (record.cells.size() < columns || isLonger)
        throw ImportRowFault(ImportPlanTexts::tr("It has %1 cells, and the first line has %2.")
                                 .arg(record.cells.size())
                                 .arg(columns));
    planner.add(record, plan);
}

void planFile(RecordPlanner &planner, const ImportFile &file, FilePlan &plan, LineTally &tally)
{
    for (const CsvRecord &record : file.records) {
        try {
            planRecord(planner, file, record, plan);
        } catch (const ImportRowFault &fault) {
            plan.faults.push_back({record.line, QString::fromUtf8(fault.what())});
        } catch (const OverflowError &) {
            plan.faults.push_back(
                {record.line, ImportPlanTexts::tr("A number is outside the range of what can be "
                                                  "stored.")});
        }
        tally.advance();
    }
}

QString obstacleTo(Session &session, const std::vector<ImportFile> &files, const ImportPlan &plan)
{
    for (const ImportTable &table : importTables()) {
        if (table.kind < ImportKind::MealsConsumed)
            continue; // the database numbers them itself
        int added = 0;
        for (size_t i = 0; i < files.size(); ++i)
            added += files[i].kind == table.kind ? plan.files[i].added : 0;
        const int left = added > 0 ? identifiersLeft(session.data(), *table.table) : 0;
        if (added > left)
            return ImportPlanTexts::tr(
                       "%1: the journal has room for %2 more records, and the files "
                       "hold %3.")
                .arg(table.title, session.text().toText(left), session.text().toText(added));
    }
    return {};
}

} // namespace

FilePlan ImportPlan::sum() const
{
    FilePlan sum;
    for (const FilePlan &file : files) {
        sum.added += file.added;
        sum.updated += file.updated;
        sum.existing += file.existing;
        sum.faults.insert(sum.faults.end(), file.faults.begin(), file.faults.end());
    }
    return sum;
}

CatalogueNames &ImportPlan::namesOf(ImportKind kind)
{
    if (kind == ImportKind::Activities || kind == ImportKind::ActivitiesPerformed)
        return activities;
    return kind == ImportKind::MealCategories ? categories : meals;
}

ImportPlan planImport(Session &session, const std::vector<ImportFile> &files,
                      ExistingRecords existing, const std::function<void(double)> &progress)
{
    Connection &connection = session.data().Con;
    ImportPlan plan;
    plan.dataVersion = connection.dataVersion();
    plan.categories = CatalogueNames(connection, schema::MealCategory::table);
    plan.meals = CatalogueNames(connection, schema::Meal::table);
    plan.activities = CatalogueNames(connection, schema::Exercise::table);
    plan.files.resize(files.size());
    RecordPlanner planner(session, plan, existing);
    LineTally tally(files, progress);
    for (const ImportTable &table : importTables()) {
        for (size_t i = 0; i < files.size(); ++i) {
            if (files[i].kind != table.kind || !missingField(files[i], existing).isEmpty())
                continue;
            planner.begin(files[i]);
            planFile(planner, files[i], plan.files[i], tally);
        }
    }
    plan.obstacle = obstacleTo(session, files, plan);
    return plan;
}

QString missingField(const ImportFile &file, ExistingRecords existing)
{
    const bool isUpdate = existing == ExistingRecords::Updated &&
                          (file.kind == ImportKind::Meals || file.kind == ImportKind::Activities);
    for (size_t i = 0; i < file.matches.size(); ++i) {
        const ImportField &field = file.table().fields[i];
        const FieldMatch &match = file.matches[i];
        const bool isRequired = isUpdate ? qstrcmp(field.header, "Name") == 0 : field.isRequired;
        if (isRequired && match.column < 0 && match.whenEmpty.trimmed().isEmpty())
            return field.caption;
    }
    return {};
}
