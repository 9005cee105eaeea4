// A backup is whole or there is none: while the journal is in use, under faults, and killed. Run
// with a database and a folder, this is itself the program that makes backups and is killed.
#include "backup/backuperror.h"
#include "backup/backupplace.h"
#include "backup/makebackup.h"
#include "backupsamples.h"
#include "faultyfiles.h"
#include "session/installation.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals;
using faultyfiles::Fault;

namespace {

const QDateTime moment(QDate(2026, 11, 23), QTime(8, 15, 30));

QStringList everythingIn(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

QStringList namesOf(const std::vector<Backup> &backups)
{
    QStringList names;
    for (const Backup &backup : backups)
        names << QFileInfo(backup.folder).fileName();
    return names;
}

} // namespace

class tst_makebackup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_journal = std::make_unique<TestJournal>();
        fillJournal(*m_journal);
        m_place = m_journal->folder.filePath(u"a place/backups"_s);
    }
    void holdsWhatTheJournalHolds();
    void isOfOneMoment();
    void touchesNoOther();
    void endedLeavesNothing();
    void damageIsNotBackedUp();
    void faultsLeaveAllOrNothing();
    void killsLeaveAllOrNothing();
    void keepsTheNewest();

private:
    QString make(const BackupProgress &progress = {})
    {
        return makeBackup(m_journal->path(), m_place, moment, progress);
    }

    std::unique_ptr<TestJournal> m_journal;
    QString m_place;
};

void tst_makebackup::holdsWhatTheJournalHolds()
{
    Installation(m_journal->folder.path()).setValue(u"Windows/frmMain"_s, u"1 2 3 4"_s);
    const QStringList before = contentsOf(m_journal->data->Con);
    const QByteArray bytes = fileBytes(m_journal->path());
    const QString folder = make();
    QCOMPARE(folder, m_place + u"/Corvana 2026-11-23 08-15-30"_s);
    QCOMPARE(everythingIn(m_place), QStringList{u"Corvana 2026-11-23 08-15-30"_s});
    QCOMPARE(everythingIn(folder), (QStringList{u"Corvana.ini"_s, u"Corvana.mdb"_s}));
    QCOMPARE(fileBytes(folder + u"/Corvana.ini"_s),
             fileBytes(m_journal->folder.filePath(u"Corvana.ini"_s)));
    // It is a journal as good as the first one, which has not changed.
    deData copy(folder + u"/Corvana.mdb"_s);
    QCOMPARE(contentsOf(copy.Con), before);
    QVERIFY(!fileBytes(copy.Con.path()).contains("SQLite"));
    copy.run("insert into MealCategory (Name) values ('New one')");
    QVERIFY(fileBytes(m_journal->path()) == bytes);
    // A folder without the memory of the first start would be taken for a new installation.
    QFile::remove(m_journal->folder.filePath(u"Corvana.ini"_s));
    QCOMPARE(Installation(make()).firstStart(), Installation::FirstStart::Done);
}

// Of several steps, between which others try to store.
void tst_makebackup::isOfOneMoment()
{
    enlargeJournal(*m_journal);
    m_journal->exec("PRAGMA busy_timeout=0");
    const QStringList before = contentsOf(m_journal->data->Con);
    QList<int> steps;
    const QString folder = make([&](int percent) {
        steps << percent;
        try {
            m_journal->exec("delete from UserNote; delete from Body");
        } catch (const StoreError &) {
            // It has to wait.
        }
        return true;
    });
    QVERIFY(steps.size() > 3);
    QVERIFY(std::is_sorted(steps.begin(), steps.end()));
    QCOMPARE(steps.last(), 100);
    Connection copy(folder + u"/Corvana.mdb"_s);
    QCOMPARE(contentsOf(copy), before);
    m_journal->exec("delete from UserNote"); // and need not wait any longer
}

void tst_makebackup::touchesNoOther()
{
    QStringList expected;
    for (const char *name :
         {"Corvana 2026-11-23 08-15-30", "Corvana 2026-11-23 08-15-31.unfinished",
          "Corvana 2026-11-23 08-15-32"}) {
        QVERIFY(QDir().mkpath(m_place + u'/' + name));
        expected << name;
    }
    QCOMPARE(QFileInfo(make()).fileName(), u"Corvana 2026-11-23 08-15-33"_s);
    for (const QString &name : expected)
        QCOMPARE(everythingIn(m_place + u'/' + name), QStringList());
}

void tst_makebackup::endedLeavesNothing()
{
    enlargeJournal(*m_journal);
    for (const int last : {0, 50, 99}) {
        QCOMPARE(make([last](int percent) { return percent <= last; }), QString());
        QVERIFY(!QDir(m_place).exists());
    }
    const QString file = m_journal->folder.filePath(u"file"_s);
    setFileBytes(file, "x");
    for (const QString &place : {file, file + u"/deeper"_s})
        QVERIFY_THROWS_EXCEPTION(BackupError, makeBackup(m_journal->path(), place, moment));
}

void tst_makebackup::damageIsNotBackedUp()
{
    // An index that misses a row: every page is sound, and yet the file is not whole.
    m_journal->exec("PRAGMA writable_schema=ON;"
                    "update sqlite_master set sql = sql || ' where BodyID > 100'"
                    " where name = 'BodyByDate'");
    m_journal->open();
    m_journal->exec("insert into Body values (50, 46100, 70, 90, 80, 95, 'M');"
                    "PRAGMA writable_schema=ON;"
                    "update sqlite_master set sql = replace(sql, ' where BodyID > 100', '')"
                    " where name = 'BodyByDate'");
    QVERIFY_THROWS_EXCEPTION(BackupError, make());
    QVERIFY(!QDir(m_place).exists());
    m_journal->data.reset();
    QByteArray bytes = fileBytes(m_journal->path());
    bytes.replace(bytes.size() - 4096, 4096, QByteArray(4096, 'x'));
    setFileBytes(m_journal->path(), bytes);
    QVERIFY_THROWS_EXCEPTION(StoreError, make());
    QVERIFY(!QDir(m_place).exists());
}

void tst_makebackup::faultsLeaveAllOrNothing()
{
    const QStringList before = contentsOf(m_journal->data->Con);
    int refusals = 0;
    for (const auto &[fault, persists] :
         {std::pair(Fault::Busy, true), std::pair(Fault::Full, true),
          std::pair(Fault::InputOutput, false), std::pair(Fault::InputOutput, true)}) {
        for (int n = 1;; ++n) {
            faultyfiles::arm(fault, n, persists);
            QString folder;
            StoreError::Kind kind = StoreError::Kind::Other;
            try {
                folder = make();
            } catch (const StoreError &error) {
                kind = error.kind();
            }
            const bool struck = faultyfiles::disarm();
            if (folder.isEmpty()) {
                QVERIFY(struck);
                QCOMPARE(kind, fault == Fault::Busy   ? StoreError::Kind::Busy
                               : fault == Fault::Full ? StoreError::Kind::Full
                                                      : StoreError::Kind::InputOutput);
                QVERIFY(!QDir(m_place).exists());
                ++refusals;
            } else {
                QCOMPARE(contentsOf(folder), before);
                QVERIFY(QDir(m_place).removeRecursively());
            }
            if (!struck)
                break;
        }
    }
    QVERIFY2(refusals > 20, qPrintable(QString::number(refusals)));
}

void tst_makebackup::killsLeaveAllOrNothing()
{
    enlargeJournal(*m_journal);
    const QStringList before = contentsOf(m_journal->data->Con);
    int unfinished = 0;
    qsizetype finished = 0;
    for (int kill = 0; kill < 25; ++kill) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {m_journal->path(), m_place});
        QVERIFY(program.waitForStarted());
        QVERIFY(kill % 2 == 0 || program.waitForReadyRead(20'000));
        QTest::qSleep(QRandomGenerator::global()->bounded(150));
        program.kill();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.readAllStandardError(), QByteArray());
        const std::vector<Backup> backups = backupsIn(m_place);
        for (const Backup &backup : backups)
            QCOMPARE(contentsOf(backup.folder), before);
        finished += qsizetype(backups.size());
        unfinished += everythingIn(m_place).size() > qsizetype(backups.size()) ? 1 : 0;
        // What is left is gone with the first backup that is made by itself a day later.
        removeOldBackups(m_place, 1, QDateTime::currentDateTime().addDays(2));
        QVERIFY(everythingIn(m_place).size() <= 1);
        QDir(m_place).removeRecursively();
    }
    qInfo("%lld backups finished, %d cut short", qint64(finished), unfinished);
    QVERIFY(finished > 5 && unfinished > 5);
}

void tst_makebackup::keepsTheNewest()
{
    const QDir place(m_place);
    const auto add = [&place](const QString &folder, const char *file) {
        QVERIFY(place.mkpath(folder));
        setFileBytes(place.filePath(folder + u'/' + file), "x");
    };
    QStringList names;
    for (int day = 1; day <= 12; ++day) {
        names.prepend(backupName(QDateTime(QDate(2026, 9, day), QTime(8, 0))));
        for (const char *file : {"Corvana.mdb", "Corvana.ini"})
            add(names.first(), file);
    }
    // Of the two oldest one holds something else; and there is what only looks like a backup.
    add(names.last(), "letter.txt");
    QStringList others = {u"Corvana 2026-01-01"_s, u"Corvana 2026-11-31 08-15-30"_s,
                          u"Corvana 2020-01-01 00-00-00 copy"_s, u"letters"_s,
                          u"Corvana 2020-01-01 00-00-00"_s};
    for (const QString &name : others)
        add(name, name.endsWith(u"00-00"_s) ? "letter.txt" : "Corvana.mdb");
    others << u"Corvana 2019-01-01 00-00-00"_s;
#ifndef Q_OS_WIN
    QVERIFY(QFile::link(place.filePath(u"letters"_s), place.filePath(others.last())));
#else
    setFileBytes(place.filePath(others.last()), "x");
#endif
    const QString recent = u"Corvana 2026-09-12 07-00-00.unfinished"_s;
    for (const QString &name : {recent, u"Corvana 2026-09-10 07-00-00.unfinished"_s})
        add(name, "Corvana.mdb");
    QCOMPARE(namesOf(backupsIn(m_place)), names);

    removeOldBackups(m_place, 8, QDateTime(QDate(2026, 9, 12), QTime(8, 0)));
    QCOMPARE(namesOf(backupsIn(m_place)), names.mid(0, 8) + QStringList{names.last()});
    const QStringList expected = names.mid(0, 8) + others + QStringList{names.last(), recent};
    const QStringList left = everythingIn(m_place);
    QCOMPARE(QSet<QString>(left.begin(), left.end()),
             QSet<QString>(expected.begin(), expected.end()));
    QVERIFY(QFile::exists(place.filePath(u"letters/Corvana.mdb"_s)));
    removeOldBackups(m_place, 0, moment); // never the last one
    QCOMPARE(namesOf(backupsIn(m_place)), (QStringList{names.first(), names.last()}));
}

int main(int argc, char **argv)
{
    if (argc == 3 && QFile::exists(QString::fromLocal8Bit(argv[1]))) {
        for (;;) {
            makeBackup(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2]),
                       QDateTime::currentDateTime());
            std::puts("made");
            std::fflush(stdout);
        }
    }
    faultyfiles::install();
    QCoreApplication application(argc, argv);
    tst_makebackup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_makebackup.moc"
