// A journal of its own for each test: a database file in a temporary folder, a clock that stands
// still, a fixed locale.
#pragma once

#include "session/session.h"

#include <QFile>
#include <QTemporaryDir>

#include <memory>

class FixedClock : public Clock
{
public:
    explicit FixedClock(const QDateTime &now)
        : m_now(now)
    {
    }
    QDateTime now() const override { return m_now; }
    void setNow(const QDateTime &now) { m_now = now; }

private:
    QDateTime m_now;
};

/// Makes an empty database file with the delivered schema: no catalogue, no journal, a metric
/// user of 70 kg with 59 background calories per hour, counters at 1, installDate 2026-01-01.
inline void makeEmptyJournal(const QString &path)
{
    QFile schema(QStringLiteral(CORVANA_SCHEMA));
    if (!schema.open(QIODevice::ReadOnly))
        qFatal("the schema can't be read");
    const auto connection = Connection::create(path);
    WriteTransaction transaction(*connection); // one, for speed
    connection->exec(schema.readAll() +
                     "insert into Common (weight, metabolicRate, Measurement, NextBodyID,"
                     " NextMealConsumeID, NextExercisePerformID, NextUserNoteID, installDate)"
                     " values (70, 59, 'M', 1, 1, 1, 1, 46023)");
    transaction.commit();
}

inline QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}
inline void setFileBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s can't be written", qPrintable(path));
}

/// The rows of a query, columns joined by "|", for comparison with what was expected.
inline QStringList queryRows(Connection &connection, const char *sql)
{
    QStringList result;
    SQLite::Statement statement(connection.database(), sql);
    while (statement.executeStep()) {
        QStringList columns;
        for (int i = 0; i < statement.getColumnCount(); ++i)
            columns += columnValue(statement, i).toText();
        result += columns.join(u'|');
    }
    return result;
}

/// An open session on such a file; today is Wednesday, 22 July 2026, 12:30.
class TestJournal
{
public:
    explicit TestJournal(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom))
        : clock(QDateTime(QDate(2026, 7, 22), QTime(12, 30, 45)))
    {
        makeEmptyJournal(path());
        open(locale);
    }
    /// Once more, where it was open.
    void open(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom))
    {
        session.reset();
        data = std::make_unique<deData>(path());
        session = std::make_unique<Session>(*data, clock, locale);
        session->readCommonParameters();
    }

    QString path() const { return folder.filePath(QStringLiteral("Corvana.mdb")); }
    void exec(const char *sql) { data->Con.exec(sql); }

    QStringList rows(const char *sql) { return queryRows(data->Con, sql); }
    QString row(const char *sql) { return rows(sql).join(u'\n'); }

    QTemporaryDir folder;
    FixedClock clock;
    std::unique_ptr<deData> data;
    std::unique_ptr<Session> session;
};
