// A backup takes the journal's place as a whole or not at all, and what is no backup is refused.
// Run with a database and two backups, this is itself the program that restores and is killed.
#include "backup/backuperror.h"
#include "backup/backupfile.h"
#include "backup/makebackup.h"
#include "backup/restorebackup.h"
#include "backupsamples.h"
#include "data/identifiers.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals;

class tst_restorebackup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_journal = std::make_unique<TestJournal>();
        fillJournal(*m_journal);
        const QDateTime time(QDate(2026, 11, 23), QTime(8, 15));
        m_backup = makeBackup(m_journal->path(), m_journal->folder.filePath(u"b"_s), time) +
                   u"/Corvana.mdb"_s;
    }
    void goesThereAndBack();
    void endedInBetweenItChangesNothing();
    void countersNeverGoBack();
    void refusesWhatIsNoBackup_data();
    void refusesWhatIsNoBackup();
    void takesAStoreThatWasCutShort();
    void killsLeaveTheOneOrTheOther();

private:
    void restore(const QString &path)
    {
        BackupFile file(path);
        restoreBackup(*m_journal->session, file.connection(), u"Restoring"_s);
    }
    QStringList contents() { return contentsOf(m_journal->data->Con); }
    // But for the counters.
    QStringList rows()
    {
        return contents().filter(QRegularExpression(u"^(?!Common)"_s)) +
               m_journal->rows("select weight, metabolicRate, Measurement, installDate"
                               " from Common");
    }

    std::unique_ptr<TestJournal> m_journal;
    QString m_backup;
};

// Catalogues in which names have changed places, so that no order of single rows leads from the one
// to the other.
void tst_restorebackup::goesThereAndBack()
{
    const QStringList backedUp = contents();
    m_journal->exec("update Meal set Name = 'x' where MealID = 1;"
                    "update Meal set Name = 'Apple', MealCategoryID = 1 where MealID = 2;"
                    "update Meal set Name = 'Pear' where MealID = 1;"
                    "update MealCategory set Name = 'y' where MealCategoryID = 1;"
                    "update MealCategory set Name = 'Fruit' where MealCategoryID = 2;"
                    "insert into MealCategory (Name) values ('Größe 日記');"
                    "update Meal set MealCategoryID = 4;"
                    "delete from MealCategory where Name = 'y';"
                    "insert into Meal select 9, 4, 'Nut', 'g', 1, 1, 1, 1, 1, 1, 1, 1, 1;"
                    "insert into MealConsume values (4, 9, 46230, 0.5, 1);"
                    "delete from MealConsume where MealConsumeID = -1; delete from ExercisePerform;"
                    "delete from Exercise; update Body set Waist = 1; delete from UserNote;"
                    "update Common set weight = 80, Measurement = 'I', NextMealConsumeID = 4");
    const QStringList changed = rows();
    QFile picked(m_backup);
    const QByteArray bytes = fileBytes(m_backup);
    QVERIFY(picked.setPermissions(QFile::ReadOwner));
    restore(m_backup);
    QStringList expected = backedUp;
    expected.replaceInStrings(u"|5|3|4|6|"_s, u"|5|4|4|6|"_s); // the one counter that was ahead
    QVERIFY(expected != backedUp);
    QCOMPARE(contents(), expected);
    QVERIFY(fileBytes(m_backup) == bytes);
    QCOMPARE(QDir(QFileInfo(m_backup).path()).entryList(QDir::Files | QDir::Hidden),
             (QStringList{u"Corvana.ini"_s, u"Corvana.mdb"_s}));

    UndoHistory &history = m_journal->session->history();
    QCOMPARE(history.next(Direction::Backward)->description, u"Restoring"_s);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(history.take(Direction::Backward).tables.size(), schema::tables.size());
        QCOMPARE(rows(), changed);
        history.take(Direction::Forward);
        QCOMPARE(contents(), expected);
    }
    QCOMPARE(m_journal->rows("PRAGMA foreign_key_check"), QStringList());
    QCOMPARE(m_journal->row("PRAGMA integrity_check"), u"ok"_s);
}

// While rows go, and while others come.
void tst_restorebackup::endedInBetweenItChangesNothing()
{
    m_journal->exec(
        "with recursive n(i) as (select 10 union all select i + 1 from n where i < 1490)"
        " insert into UserNote select i, i, i, 'x' from n");
    const QStringList before = contents();
    BackupFile file(m_backup);
    for (const int calls : {1, 2, 3}) {
        int left = calls;
        int last = -1;
        const bool isDone =
            restoreBackup(*m_journal->session, file.connection(), u"Restoring"_s, [&](int percent) {
                const bool rises = percent > last || left == calls;
                last = percent;
                return rises && --left > 0;
            });
        QVERIFY(!isDone);
        QVERIFY2(left == 0, qPrintable(u"%1 of %2"_s.arg(left).arg(calls)));
        QVERIFY(!m_journal->data->Con.isInTransaction());
        QCOMPARE(contents(), before);
        QVERIFY(!m_journal->session->history().next(Direction::Backward));
    }
    restore(m_backup);
    QCOMPARE(m_journal->row("select count(*) from UserNote"), u"1"_s);
}

void tst_restorebackup::countersNeverGoBack()
{
    // Of a new installation, which is behind, and of one that is ahead.
    for (const int journal : {0, 100}) {
        m_journal->exec(qPrintable(u"delete from MealConsume; delete from UserNote;"
                                   "update Common set NextUserNoteID = %1, NextMealConsumeID = %1;"
                                   "update sqlite_sequence set seq = %1"_s.arg(journal)));
        restore(m_backup);
        const auto undo = [this] { m_journal->session->history().take(Direction::Backward); };
        for (int i = 0; i < 2; ++i) {
            QCOMPARE(int(NewUserNoteID(*m_journal->data)), qMax(6, journal) + 1 + i);
            QCOMPARE(int(NewMealConsumeID(*m_journal->data)), qMax(3, journal) + 1 + i);
            if (i == 0)
                undo();
        }
        // 3 was deleted before the backup was made.
        m_journal->exec(
            "insert into MealCategory (Name) select 'New ' || count(*) from MealCategory");
        QCOMPARE(m_journal->row("select max(MealCategoryID) from MealCategory").toInt(),
                 qMax(3, journal) + 1);
    }
}

void tst_restorebackup::refusesWhatIsNoBackup_data()
{
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<QString>("reason");
    const auto add = [](const char *name, const char *sql, const char *reason) {
        QTest::newRow(name) << QByteArray(sql) << QString(reason);
    };
    add("a table more", "create table Sleep (SleepID integer)", "newer program");
    add("a computed column more", "alter table Body add column Neck real as (Waist * 2)",
        "newer program");
    add("a table less", "drop table UserNote", "is missing");
    add("a column less", "alter table Meal drop column Increment", "is missing");
    add("another password", "PRAGMA rekey='other'", "another password");
    add("stray rows", "PRAGMA foreign_keys=OFF; delete from Meal", "refer to records");
    add("a damaged page", "", "damaged");
    add("cut off", "", "");
    add("a picture", "", "no journal");
    add("empty", "", "empty");
    add("missing", "", "missing");
}

void tst_restorebackup::refusesWhatIsNoBackup()
{
    QFETCH(QByteArray, sql);
    QFETCH(QString, reason);
    if (!sql.isEmpty())
        Connection(m_backup).exec(sql);
    const QByteArray name = QTest::currentDataTag();
    constexpr qsizetype page = 4096;
    QByteArray bytes = fileBytes(m_backup);
    if (name == "a damaged page")
        bytes.replace(6 * page, page, QByteArray(page, 'x'));
    else if (name == "cut off")
        bytes.chop(5 * page);
    else if (name == "a picture")
        bytes = QByteArray("\x89PNG") + QByteArray(9999, 'x');
    else if (name == "empty")
        bytes.clear();
    setFileBytes(m_backup, bytes);
    if (name == "missing")
        QFile::remove(m_backup);
    const QByteArray journal = fileBytes(m_journal->path());
    QString said;
    try {
        restore(m_backup);
    } catch (const BackupError &error) {
        said = QString::fromUtf8(error.what());
    }
    QVERIFY2(!said.isEmpty() && said.contains(reason), qPrintable(said));
    QVERIFY(fileBytes(m_journal->path()) == journal);
    QVERIFY(fileBytes(m_backup) == (name == "missing" ? QByteArray() : bytes));
    QVERIFY(!m_journal->session->history().next(Direction::Backward));
}

// As a folder looks that was copied while the program ran: the rollback journal belongs to it or to
// another state of it, and stays as it is.
void tst_restorebackup::takesAStoreThatWasCutShort()
{
    const QStringList backedUp = contents();
    const QByteArray whole = fileBytes(m_backup);
    QByteArray torn;
    QByteArray rollback;
    {
        Connection other(m_backup);
        other.exec("PRAGMA cache_size = 5; begin; with recursive n(i) as (select 100 union all"
                   " select i + 1 from n where i < 2000)"
                   " insert into UserNote select i, 46000, 46000, hex(randomblob(20)) from n");
        torn = fileBytes(m_backup);
        rollback = fileBytes(m_backup + u"-journal"_s);
        // And while it is being stored the one is not taken for the other.
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, restore(m_backup));
    }
    QVERIFY(torn.size() > whole.size() && !rollback.isEmpty());
    m_journal->exec("delete from UserNote");
    for (const QByteArray &file : {torn, whole + torn.mid(whole.size())}) {
        setFileBytes(m_backup, file);
        setFileBytes(m_backup + u"-journal"_s, rollback);
        restore(m_backup);
        QCOMPARE(contents(), backedUp);
        QVERIFY(fileBytes(m_backup) == file);
        QVERIFY(fileBytes(m_backup + u"-journal"_s) == rollback);
    }
    // Written on since: it would be spoilt.
    setFileBytes(m_backup, whole);
    QFile::remove(m_backup + u"-journal"_s);
    Connection(m_backup).exec("delete from Body");
    Connection(m_backup).exec("update UserNote set DateTo = DateTo + 1");
    setFileBytes(m_backup + u"-journal"_s, rollback);
    QVERIFY_THROWS_EXCEPTION(BackupError, restore(m_backup));
    QCOMPARE(contents(), backedUp);
}

void tst_restorebackup::killsLeaveTheOneOrTheOther()
{
    const QStringList first = rows();
    enlargeJournal(*m_journal);
    m_journal->exec("delete from Body; update Meal set Unit = 'g'; update Common set weight = 90");
    const QStringList second = rows();
    const QDateTime time(QDate(2026, 11, 23), QTime(8, 15));
    const QString large =
        makeBackup(m_journal->path(), m_journal->folder.filePath(u"b"_s), time) + u"/Corvana.mdb"_s;
    m_journal->session.reset();
    m_journal->data.reset();
    int cutShort = 0;
    int found[2] = {0, 0};
    for (int kill = 0; kill < 30; ++kill) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(),
                      {m_journal->path(), m_backup, large});
        QVERIFY(program.waitForStarted());
        for (int restored = 0; restored < 1 + kill % 2; ++restored) // while it restores the other
            QVERIFY(program.waitForReadyRead(20'000));
        QTest::qSleep(QRandomGenerator::global()->bounded(200));
        program.kill();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.readAllStandardError(), QByteArray());
        cutShort += QFile::exists(m_journal->path() + u"-journal"_s) ? 1 : 0;
        m_journal->open();
        const QStringList now = rows();
        QVERIFY(now == first || now == second);
        ++found[now == second ? 1 : 0];
        QCOMPARE(m_journal->row("PRAGMA integrity_check"), u"ok"_s);
        m_journal->session.reset();
        m_journal->data.reset();
    }
    qInfo("%d restorings cut short, found %d and %d times", cutShort, found[0], found[1]);
    QVERIFY(cutShort > 3 && found[0] > 0 && found[1] > 0);
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 4 && QFile::exists(QString::fromLocal8Bit(argv[1]))) {
        deData data(QString::fromLocal8Bit(argv[1]));
        const SystemClock clock;
        Session session(data, clock, QLocale::c());
        for (int i = 0;; ++i) {
            BackupFile file(QString::fromLocal8Bit(argv[2 + i % 2]));
            restoreBackup(session, file.connection(), {});
            session.history().forget();
            std::puts("restored");
            std::fflush(stdout);
        }
    }
    tst_restorebackup test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_restorebackup.moc"
