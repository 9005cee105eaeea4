#include "testjournal.h"

#include <QFile>

void makeEmptyJournal(const QString &path)
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

QByteArray fileBytes(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void setFileBytes(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s can't be written", qPrintable(path));
}

QStringList queryRows(Connection &connection, const char *sql)
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

TestJournal::TestJournal(const QLocale &locale)
    : clock(QDateTime(QDate(2026, 7, 22), QTime(12, 30, 45)))
    , m_locale(locale)
{
    makeEmptyJournal(path());
    open();
}

TestJournal::~TestJournal() = default;

void TestJournal::open()
{
    session.reset();
    data = std::make_unique<deData>(path());
    session = std::make_unique<Session>(*data, clock, m_locale);
    session->readCommonParameters();
}

void TestJournal::damagePageOf(const QString &name)
{
    const QString root = u"select rootpage from sqlite_schema where name = '%1'"_qs.arg(name);
    const qint64 page = row(qPrintable(root)).toLongLong();
    QByteArray bytes = fileBytes(path());
    setFileBytes(path(), bytes.replace((page - 1) * 4096, 4096, QByteArray(4096, 'x')));
    open();
}
