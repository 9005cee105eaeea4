// A journal of its own for each test: a database file in a temporary folder, a clock that stands
// still, a fixed locale.
#pragma once

#include "session/session.h"

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
void makeEmptyJournal(const QString &path);

QByteArray fileBytes(const QString &path);
void setFileBytes(const QString &path, const QByteArray &bytes);

/// The rows of a query, columns joined by "|", for comparison with what was expected.
QStringList queryRows(Connection &connection, const char *sql);

/// An open session on such a file; today is Wednesday, 22 July 2026, 12:30.
class TestJournal
{
public:
    explicit TestJournal(const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom));
    ~TestJournal();
    /// Once more, where it was open.
    void open();

    QString path() const { return folder.filePath(QStringLiteral("Corvana.mdb")); }
    void exec(const char *sql) { data->Con.exec(sql); }
    /// Overwrites the first page of a table or an index, and opens the file once more.
    void damagePageOf(const QString &name);

    QStringList rows(const char *sql) { return queryRows(data->Con, sql); }
    QString row(const char *sql) { return rows(sql).join(u'\n'); }

    QTemporaryDir folder;
    FixedClock clock;
    std::unique_ptr<deData> data;
    std::unique_ptr<Session> session;

private:
    QLocale m_locale;
};
