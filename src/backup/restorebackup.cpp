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

void deleteRows(Connection &journal)
{
    // Those that refer to others first.
    std::for_each(schema::tables.rbegin(), schema::tables.rend(), [&](const schema::Table *table) {
        if (!isCommon(table))
            journal.write(std::string("delete from ") + table->name(), std::vector<Value>());
    });
}

void copyRows(Connection &journal, Connection &backup, const schema::Table &table)
{
    std::string columns;
    std::string marks;
    for (const schema::Column &column : table) {
        columns += (columns.empty() ? "" : ", ") + std::string(column.name());
        marks += marks.empty() ? "?" : ", ?";
    }
    const std::string insert =
        std::string("insert into ") + table.name() + " (" + columns + ") values (" + marks + ")";
    forEachRow(backup, "select " + columns + " from " + table.name(),
               [&](const std::vector<Value> &row) { journal.write(insert, row); });
}

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

void restoreBackup(Session &session, Connection &backup, const QString &description)
{
    Connection &journal = session.data().Con;
    raiseCounters(journal, backup);
    const UndoHistory::Recording recording(session.history(), description, session.currentDate());
    WriteTransaction transaction(journal);
    deleteRows(journal);
    // Taken back in two parts, too: while the one's rows are in the way of the other's, names that
    // have changed places could not be put back.
    if (ChangeRecorder *recorder = journal.recorder())
        recorder->divide(journal.database().getHandle());
    for (const schema::Table *table : schema::tables) {
        if (!isCommon(table))
            copyRows(journal, backup, *table);
    }
    copyParameters(journal, backup);
    transaction.commit();
}
