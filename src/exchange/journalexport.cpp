#include "exchange/journalexport.h"

#include "exchange/exporttables.h"
#include "exchange/readsnapshot.h"

#include <QCoreApplication>
#include <QDir>
#include <QTemporaryDir>

#include <algorithm>

namespace {

const ExportPeriod everyDay = {QDate(1, 1, 1), QDate(9999, 12, 31)};

struct Cancelled
{
};

/// How much is written of all that there is to write.
class Tally
{
public:
    Tally(qint64 total, const ExportProgress &progress)
        : m_total(total)
        , m_progress(progress)
    {
    }

    void advance(qint64 records)
    {
        constexpr qint64 step = 500;
        m_done += records;
        if (m_done < m_next)
            return;
        m_next = m_done + step;
        if (!m_progress(std::min(1.0, double(m_done) / double(std::max<qint64>(m_total, 1)))))
            throw Cancelled();
    }

private:
    qint64 m_total;
    const ExportProgress &m_progress;
    qint64 m_done = 0;
    qint64 m_next = 0;
};

class Export
{
public:
    Export(Connection &connection, const ExportOrder &order, const QDir &folder,
           const ExportProgress &progress)
        : m_connection(connection)
        , m_order(order)
        , m_folder(folder)
        , m_tally(recordCount(), progress)
    {
    }

    void write()
    {
        for (const ExportTable &table : exportTables())
            writeTable(table);
        CsvFile days(m_folder.filePath(QStringLiteral("Days.csv")), m_order.format);
        writeDays(m_connection, m_order.period.value_or(everyDay), days,
                  [this](qint64 records) { m_tally.advance(records); });
        days.commit();
    }

private:
    SQLite::Statement select(const char *values, const ExportTable &table, const char *order = "")
    {
        const bool isPart = m_order.period && table.condition;
        std::string sql = std::string("select ") + values + " from " + table.from;
        if (isPart)
            sql += std::string(" where ") + table.condition;
        SQLite::Statement statement(m_connection.database(), sql + order);
        if (isPart)
            bindValues(statement, {Value(m_order.period->dateFrom), Value(m_order.period->dateTo)});
        return statement;
    }

    // Those on days are written twice, as they are and by day.
    qint64 recordCount()
    {
        qint64 records = 0;
        for (const ExportTable &table : exportTables()) {
            SQLite::Statement count = select("count(*)", table);
            count.executeStep();
            records += count.getColumn(0).getInt64() * (table.condition ? 2 : 1);
        }
        return records;
    }

    void writeTable(const ExportTable &table)
    {
        CsvFile file(m_folder.filePath(QLatin1String(table.file) + QLatin1String(".csv")),
                     m_order.format);
        for (const ExportColumn &column : table.columns)
            file.add(Value(QString::fromLatin1(column.header)));
        file.endRow();
        const std::string order = std::string(" order by ") + table.order;
        SQLite::Statement rows = select(table.values, table, order.c_str());
        Q_ASSERT(size_t(rows.getColumnCount()) == table.columns.size());
        while (rows.executeStep()) {
            int index = 0;
            for (const ExportColumn &column : table.columns)
                file.add(columnValue(rows, index++), column.kind);
            file.endRow();
            m_tally.advance(1);
        }
        file.commit();
    }

    Connection &m_connection;
    const ExportOrder &m_order;
    const QDir m_folder;
    Tally m_tally;
};

/// A name that nothing in the folder has yet.
QString newFolder(const ExportOrder &order)
{
    const QString name = QStringLiteral("Corvana Export %1")
                             .arg(order.now.toString(QStringLiteral("yyyy-MM-dd HH-mm-ss")));
    QString path = QDir(order.folder).absoluteFilePath(name);
    for (int n = 2; QFileInfo::exists(path); ++n)
        path = QDir(order.folder).absoluteFilePath(QStringLiteral("%1 (%2)").arg(name).arg(n));
    return path;
}

} // namespace

std::optional<QString> exportJournal(Connection &connection, const ExportOrder &order,
                                     const ExportProgress &progress)
{
    // It goes with everything in it, unless it is whole.
    QTemporaryDir unfinished(
        QDir(order.folder).filePath(QStringLiteral("Corvana Export unfinished XXXXXX")));
    if (!unfinished.isValid())
        throw ExportError(unfinished.errorString());
    try {
        guarded([&] {
            const ReadSnapshot snapshot(connection);
            Export(connection, order, QDir(unfinished.path()), progress).write();
        });
    } catch (const Cancelled &) {
        return std::nullopt;
    }
    const QString path = newFolder(order);
    if (!QDir().rename(unfinished.path(), path))
        throw ExportError(
            QCoreApplication::translate("Export", "The new folder can't be given its name."));
    unfinished.setAutoRemove(false);
    return path;
}
