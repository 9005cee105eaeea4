// From the lines of a file to the records that are stored.
#pragma once

#include "exchange/importplan.h"
#include "exchange/importrow.h"

#include <map>
#include <memory>

/// Knows the rules of each kind of record, which are those of its editor, and what is there
/// already: in the journal and by the lines before.
class RecordPlanner
{
public:
    /// Reads the days of the journal. Throws StoreError.
    RecordPlanner(Session &session, ImportPlan &plan, ExistingRecords existing);

    /// The next lines are of this file.
    void begin(const ImportFile &file);
    /// Adds what a line is to the file's plan. Throws ImportRowFault and OverflowError.
    void add(const CsvRecord &record, FilePlan &plan);

private:
    using Values = std::vector<Value>;
    /// A measurement of the journal, or one that comes in.
    struct Measured
    {
        qint64 id;
        Values values;
        int line;
    };
    struct Noted
    {
        qint64 to;
        QString text;
        int line;
    };

    void readEntries(const schema::Table &table);
    void readMeasurements();
    void readNotes();

    void addCategory(FilePlan &plan);
    void addNamed(FilePlan &plan);
    Values mealValues(const QString &name, const Values *base) const;
    Values activityValues(const QString &name, const Values *base) const;
    void addEntry(FilePlan &plan);
    void addMeasurement(FilePlan &plan);
    void addNote(FilePlan &plan);
    void requireFreeDays(qint64 from, qint64 to) const;

    Session &m_session;
    ImportPlan &m_plan;
    const ExistingRecords m_existing;
    const ImportPlace m_place;
    const ImportFile *m_file = nullptr;
    std::unique_ptr<ImportRow> m_row;

    QHash<QString, int> m_entries;         ///< of the journal, how often there is one exactly so
    std::map<qint64, Measured> m_measured; ///< by day
    std::map<qint64, Noted> m_notes;       ///< by the first of their days
};
