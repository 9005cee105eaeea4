#include "exchange/journalcheck.h"

#include "exchange/checkrules.h"
#include "exchange/readsnapshot.h"
#include "session/excerpt.h"

#include <limits>

namespace {

class Check
{
public:
    Check(Connection &connection, const LocaleText &text)
        : m_connection(connection)
        , m_text(text)
    {
    }

    CheckReport run(const std::function<void(double)> &progress)
    {
        const std::vector<TableRules> tables = tableRules();
        const auto steps = double(tables.size() + 3);
        int done = 0;
        const auto step = [&](const QString &title, const auto &action) {
            m_ofTable = 0;
            whole(title, action);
            if (progress)
                progress(++done / steps);
        };
        const QString file = CheckTexts::tr("The file");
        step(file, [&] { checkPages(file); });
        step(file, [&] { checkReferences(tables); });
        for (const TableRules &rules : tables)
            step(rules.title, [&] { checkTable(rules); });
        step(tables.back().title, [&] { checkCounters(tables.back().title); });
        m_report.checked = {
            CheckTexts::tr("the pages and indexes of the file"),
            CheckTexts::tr("the references from record to record"),
            CheckTexts::tr("identifiers, names, numbers, dates and times of %1 records")
                .arg(m_text.toText(Value(m_records))),
            CheckTexts::tr(
                "notes that share days, days with several measurements, activities that don't end "
                "after they begin"),
            CheckTexts::tr("the counters of identifiers")};
        return std::move(m_report);
    }

private:
    /// Runs a part of the check, on one state of the file; what a damaged page hides of it is told.
    /// A transaction that has met such a page reads no other page any more: each part has its own.
    template<typename Action>
    void whole(const QString &title, const Action &action)
    {
        try {
            const ReadSnapshot snapshot(m_connection);
            guarded(action);
        } catch (const StoreError &error) {
            if (error.kind() != StoreError::Kind::Damaged &&
                error.kind() != StoreError::Kind::InputOutput)
                throw;
            m_report.findings.push_back(
                {{},
                 title,
                 CheckTexts::tr("A page of the file is damaged. This could not be checked to the "
                                "end.")});
        }
        if (m_ofTable > mostFindings)
            m_report.findings.push_back(
                {{},
                 title,
                 CheckTexts::tr("There are more findings like these: %1.")
                     .arg(m_text.toText(Value(qint64(m_ofTable - mostFindings))))});
    }

    void add(QDate day, const QString &record, const QString &what)
    {
        if (++m_ofTable <= mostFindings)
            m_report.findings.push_back({day, record, what});
    }

    void checkPages(const QString &file)
    {
        SQLite::Statement check(m_connection.database(), "PRAGMA integrity_check");
        while (check.executeStep()) {
            const QStringList lines = columnValue(check, 0).toText().split(u'\n');
            for (const QString &line : lines) {
                if (line == QLatin1String("ok") || line.startsWith(QLatin1String("***")))
                    continue; // the second names the database
                add({}, file, CheckTexts::tr("The file is damaged: %1").arg(line));
                if (line.contains(QLatin1String("error code")))
                    return; // a page can't be read, and therefore none behind it
            }
        }
    }

    void checkReferences(const std::vector<TableRules> &tables)
    {
        SQLite::Statement check(m_connection.database(), "PRAGMA foreign_key_check");
        while (check.executeStep()) {
            const std::string from = check.getColumn(0).getString();
            for (const TableRules &rules : tables) {
                if (from == rules.table->name())
                    addOrphan(rules, check.getColumn(1).getInt64(), check.getColumn(2).getString());
            }
        }
    }

    void addOrphan(const TableRules &rules, qint64 key, const std::string &parent)
    {
        QDate day;
        if (rules.day) {
            SQLite::Statement row(m_connection.database(),
                                  std::string("select ") + rules.day->name() + " from " +
                                      rules.table->name() + " where rowid = ?");
            row.bind(1, static_cast<int64_t>(key));
            if (row.executeStep() && isDay(row.getColumn(0)))
                day = dateOfDayNumber(row.getColumn(0).getInt64());
        }
        add(day, recordWords(rules, key),
            parent == schema::MealCategory::table.name()
                ? CheckTexts::tr("Its meal category does not exist.")
            : parent == schema::Meal::table.name()
                ? CheckTexts::tr("Its meal does not exist.")
                : CheckTexts::tr("Its activity does not exist."));
    }

    /// The kind of a record and its name, or else its number.
    QString recordWords(const TableRules &rules, qint64 key)
    {
        constexpr qsizetype most = 60;
        QString name;
        if (rules.naming) {
            const StatementUse statement = m_connection.prepared(rules.naming);
            statement->bind(1, static_cast<int64_t>(key));
            if (statement->executeStep())
                name = excerptOf(columnValue(*statement, 0).toText().simplified(), most);
        }
        if (rules.table == &schema::Common::table)
            return rules.title;
        if (name.isEmpty())
            name = CheckTexts::tr("record %1").arg(key);
        return CheckTexts::tr("%1: %2").arg(rules.title, name);
    }

    void checkTable(const TableRules &rules)
    {
        std::string sql = std::string("select ") + rules.table->key().name();
        for (const ColumnRule &rule : rules.columns)
            sql += std::string(", ") + rule.column.name();
        SQLite::Statement rows(m_connection.database(),
                               sql + " from " + rules.table->name() + " order by " + rules.order);
        m_lastDay = std::numeric_limits<qint64>::min();
        m_isDayTold = false;
        for (; rows.executeStep(); ++m_records)
            checkRow(rules, rows);
    }

    void checkRow(const TableRules &rules, SQLite::Statement &row)
    {
        const qint64 key = row.getColumn(0).getInt64();
        QStringList faults;
        if (key < std::numeric_limits<qint32>::min() || key > std::numeric_limits<qint32>::max())
            faults += CheckTexts::tr("Its identifier is out of range: %1.").arg(key);
        const qsizetype before = faults.size();
        int index = 0;
        for (const ColumnRule &rule : rules.columns) {
            if (const auto fault = faultOf(rule, row.getColumn(++index), m_text))
                faults += *fault;
        }
        if (faults.size() == before)
            faults += relationFault(rules, row);
        faults.removeAll(QString());
        if (faults.isEmpty())
            return;
        // The first rule of a table with days is that of the day.
        const bool hasDay = rules.day && isDay(row.getColumn(1));
        const QDate day = hasDay ? dateOfDayNumber(row.getColumn(1).getInt64()) : QDate();
        const QString record = recordWords(rules, key);
        for (const QString &fault : faults)
            add(day, record, fault);
    }

    /// What is wrong between the columns of a row, each of which is right, or with the rows before
    /// it; empty for nothing.
    QString relationFault(const TableRules &rules, SQLite::Statement &row)
    {
        if (rules.table == &schema::ExercisePerform::table)
            return row.getColumn(2).getDouble() < row.getColumn(3).getDouble()
                       ? QString()
                       : CheckTexts::tr("It does not end after it begins.");
        if (rules.table == &schema::Body::table)
            return secondMeasurement(row.getColumn(1).getInt64());
        if (rules.table == &schema::UserNote::table)
            return noteFault(row.getColumn(1).getInt64(), row.getColumn(2).getInt64());
        return {};
    }

    QString secondMeasurement(qint64 day)
    {
        const bool isSecond = day == m_lastDay && !m_isDayTold;
        m_isDayTold = day == m_lastDay;
        m_lastDay = day;
        return isSecond ? CheckTexts::tr("There are several measurements on this day.") : QString();
    }

    QString noteFault(qint64 from, qint64 to)
    {
        if (to < from)
            return CheckTexts::tr("It ends before it begins.");
        const bool intersects = from <= m_lastDay;
        m_lastDay = std::max(m_lastDay, to);
        return intersects ? CheckTexts::tr("It shares days with a note before it.") : QString();
    }

    // A counter holds the identifier given out last, of the sample's negative ones none.
    void checkCounters(const QString &title)
    {
        for (const char *table : {"Body", "MealConsume", "ExercisePerform", "UserNote"}) {
            const QString key = QLatin1String(table) + QLatin1String("ID");
            const QString sql = QStringLiteral("select Next%1, (select max(%1) from %2"
                                               " where %1 <= 2147483647) from Common")
                                    .arg(key, QLatin1String(table));
            SQLite::Statement counter(m_connection.database(), sql.toStdString());
            if (!counter.executeStep() || !counter.getColumn(0).isInteger() ||
                counter.getColumn(1).getInt64() <= counter.getColumn(0).getInt64())
                continue;
            add({}, title,
                CheckTexts::tr("The counter %1 is at %2, but there is a record %3: new records may "
                               "be refused.")
                    .arg(QLatin1String("Next") + key)
                    .arg(counter.getColumn(0).getInt64())
                    .arg(counter.getColumn(1).getInt64()));
        }
    }

    Connection &m_connection;
    const LocaleText &m_text;
    CheckReport m_report;
    qint64 m_records = 0;
    size_t m_ofTable = 0; ///< findings
    qint64 m_lastDay = 0; ///< of the rows of a table so far
    bool m_isDayTold = false;
};

} // namespace

CheckReport checkJournal(Connection &connection, const LocaleText &text,
                         const std::function<void(double)> &progress)
{
    return Check(connection, text).run(progress);
}
