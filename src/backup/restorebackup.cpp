#include "backup/restorebackup.h"

#include "data/changerecorder.h"
#include "session/session.h"

#include <algorithm>
#include <array>

namespace {

constexpr std::array counters = {schema::Common::NextBodyID, schema::Common::NextMealConsumeID,
                                 schema::Common::NextExercisePerformID,
                                 schema::Common::NextUserNoteID};

bool isCounter(const schema::Column &column)
{
    return std::any_of(counters.begin(), counters.end(), [&](const schema::Column &counter) {
        return qstrcmp(counter.name(), column.name()) == 0;
    });
}

bool isCommon(const schema::Table *table)
{
    return table == &schema::Common::table;
}

/// Calls with each row of a query of the backup.
template<typename Call>
void forEachRow(Connection &backup, const std::string &sql, Call call)
{
    guarded([&] {
        SQLite::Statement statement(backup.database(), sql);
        std::vector<Value> row(size_t(statement.getColumnCount()));
        while (statement.executeStep()) {
            for (size_t i = 0; i < row.size(); ++i)
                row[i] = columnValue(statement, int(i));
            call(row);
        }
    });
}

// Those of the journal, and those that the engine keeps for the catalogues.
void raiseCounters(Connection &journal, Connection &backup)
{
    WriteTransaction transaction(journal);
    for (const schema::Column &counter : counters) {
        const QString name = QString::fromLatin1(counter.name());
        const QString raise = QStringLiteral("update Common set %1 = max(%1, ?)").arg(name);
        const QString select = QStringLiteral("select %1 from Common").arg(name);
        forEachRow(backup, select.toStdString(),
                   [&](const std::vector<Value> &row) { journal.write(raise.toStdString(), row); });
    }
    forEachRow(backup, "select name, seq from sqlite_sequence", [&](const std::vector<Value> &row) {
        journal.write("insert into sqlite_sequence (name, seq) select ?1, 0 where not exists"
                      " (select 1 from sqlite_sequence where name = ?1)",
                      {row[0]});
        journal.write("update sqlite_sequence set seq = max(seq, ?2) where name = ?1", row);
    });
    transaction.commit();
}

struct Cancelled
{
};

/// The rows of the journal go, and those of the backup come.
class Replacing
{
public:
    Replacing(Connection &journal, Connection &backup, const RestoreProgress &progress)
        : m_journal(journal)
        , m_backup(backup)
        , m_progress(progress)
        , m_total(rowCount(journal) + rowCount(backup))
    {
    }

    void deleteRows()
    {
        // Those that refer to others first.
        std::for_each(schema::tables.rbegin(), schema::tables.rend(),
                      [this](const schema::Table *table) {
                          if (!isCommon(table))
                              deleteRowsOf(*table);
                      });
    }

    void copyRows()
    {
        for (const schema::Table *table : schema::tables) {
            if (!isCommon(table))
                copyRowsOf(*table);
        }
    }

private:
    static constexpr int rowsAtOnce = 500;

    static qint64 rowCount(Connection &connection)
    {
        qint64 count = 0;
        for (const schema::Table *table : schema::tables)
            forEachRow(connection, std::string("select count(*) from ") + table->name(),
                       [&](const std::vector<Value> &row) { count += qint64(row[0].toDouble()); });
        return count;
    }

    void deleteRowsOf(const schema::Table &table)
    {
        const std::string name = table.name();
        const std::string some = "delete from " + name + " where rowid in (select rowid from " +
                                 name + " limit " + std::to_string(rowsAtOnce) + ")";
        while (const int deleted = m_journal.write(some, std::vector<Value>()))
            advance(deleted);
    }

    void copyRowsOf(const schema::Table &table)
    {
        std::string columns;
        std::string marks;
        for (const schema::Column &column : table) {
            columns += (columns.empty() ? "" : ", ") + std::string(column.name());
            marks += marks.empty() ? "?" : ", ?";
        }
        const std::string insert = std::string("insert into ") + table.name() + " (" + columns +
                                   ") values (" + marks + ")";
        forEachRow(m_backup, "select " + columns + " from " + table.name(),
                   [&](const std::vector<Value> &row) {
                       m_journal.write(insert, row);
                       advance(1);
                   });
    }

    void advance(int rows)
    {
        m_done += rows;
        if (!m_progress || m_done < m_next)
            return;
        m_next = m_done + rowsAtOnce;
        if (!m_progress(int(100 * m_done / m_total)))
            throw Cancelled();
    }

    Connection &m_journal;
    Connection &m_backup;
    const RestoreProgress &m_progress;
    const qint64 m_total;
    qint64 m_done = 0;
    qint64 m_next = 0;
};

void copyParameters(Connection &journal, Connection &backup)
{
    for (const schema::Column &column : schema::Common::table) {
        if (isCounter(column))
            continue;
        const std::string name = column.name();
        forEachRow(backup, "select " + name + " from Common", [&](const std::vector<Value> &row) {
            journal.write("update Common set " + name + " = ?", row);
        });
    }
}

} // namespace

bool restoreBackup(Session &session, Connection &backup, const QString &description,
                   const RestoreProgress &progress)
try {
    Connection &journal = session.data().Con;
    raiseCounters(journal, backup);
    const UndoHistory::Recording recording(session.history(), description, session.currentDate());
    WriteTransaction transaction(journal);
    Replacing replacing(journal, backup, progress);
    replacing.deleteRows();
    // Taken back in two parts, too: while the one's rows are in the way of the other's, names that
    // have changed places could not be put back.
    if (ChangeRecorder *recorder = journal.recorder())
        recorder->divide(journal.database().getHandle());
    replacing.copyRows();
    copyParameters(journal, backup);
    transaction.commit();
    return true;
} catch (const Cancelled &) {
    return false;
}
