// A password of the user's own: what it opens, what it keeps, and what a kill leaves.
#include "backup/backupfile.h"
#include "backup/makebackup.h"
#include "backup/restorebackup.h"
#include "backupsamples.h"
#include "data/pendingrollback.h"
#include "faultyfiles.h"
#include "lock/changepassword.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <cstdio>

using namespace Qt::Literals;

namespace {

// Composed and decomposed, as systems type it; leading and trailing blanks belong to it.
const FilePassword first(u" Gr\u00fc\u00dfe 日 "_s);
const FilePassword firstDecomposed(u" Gru\u0308\u00dfe 日 "_s);
const FilePassword second(u"grüße"_s);

// What refuses to open a file; none where it opens.
std::optional<StoreError::Kind> refusal(const QString &path, const FilePassword &password = {})
{
    try {
        Connection connection(path, password);
        const QStringList found =
            guarded([&] { return queryRows(connection, "PRAGMA integrity_check"); });
        if (found == QStringList{u"ok"_s})
            return std::nullopt;
        return StoreError::Kind::Damaged;
    } catch (const StoreError &error) {
        return error.kind();
    }
}

const std::array passwords = {FilePassword(), first, second};

constexpr auto locked = StoreError::Kind::Locked;
constexpr auto damaged = StoreError::Kind::Damaged;

} // namespace

class tst_changepassword : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void locksChangesAndUnlocks();
    void isOpenedByOtherToolsWithIt();
    void tellsDamageFromAWrongPassword();
    void undoesACutShortStore();
    void goesWithOtherPrograms();
    void backupsKeepTheLock();
    void refusedChangeLeavesTheOld();
    void killsLeaveTheOneOrTheOther();

private:
    Connection &connection() { return m_journal->data->Con; }
    QStringList everything()
    {
        return contentsOf(connection()) +
               m_journal->rows("select sql from sqlite_master order by name") +
               m_journal->rows("select * from sqlite_sequence order by name");
    }
    QStringList files() { return QDir(m_journal->folder.path()).entryList(QDir::Files); }

    std::unique_ptr<TestJournal> m_journal;
};

void tst_changepassword::init()
{
    m_journal = std::make_unique<TestJournal>();
    fillJournal(*m_journal);
}

void tst_changepassword::locksChangesAndUnlocks()
{
    // What no window stores, and what others have.
    m_journal->exec("PRAGMA foreign_keys=OFF; insert into MealConsume values (9, 77, x'00ff', 'a', "
                    "9e999); PRAGMA foreign_keys=ON");
    const QStringList before = everything();
    {
        const UndoHistory::Recording recording(m_journal->session->history(), u"Renaming"_s, {});
        m_journal->data->run("update Meal set Name = 'Plum' where MealID = 1");
    }
    const QString path = m_journal->path();
    QVERIFY(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup));
    const auto permissions = QFile::permissions(path);
    m_journal->data->rsMealCategorySorted.open();
    setFileBytes(path + u"-changing"_s, "left by a kill");
    changePassword(connection(), first);
    QCOMPARE(files(), QStringList{u"Corvana.mdb"_s});
    QCOMPARE(QFile::permissions(path), permissions);
    QCOMPARE(refusal(path), locked);
    QCOMPARE(refusal(path, second), locked);
    QCOMPARE(refusal(path, firstDecomposed), std::nullopt);
    // The session goes on: result sets, the history, new records.
    m_journal->data->rsMealCategorySorted.reopen();
    m_journal->session->history().take(Direction::Backward);
    QCOMPARE(everything(), before);
    const QByteArray salt = fileBytes(path).left(16);
    changePassword(connection(), second);
    QVERIFY(fileBytes(path).left(16) != salt);
    QCOMPARE(refusal(path, first), locked);
    QCOMPARE(connection().password(), second);
    changePassword(connection(), {});
    QVERIFY(connection().password().isEmpty());
    QCOMPARE(everything(), before);
    QCOMPARE(refusal(path), std::nullopt);
    QCOMPARE(refusal(path, second), std::nullopt); // not needed
    for (const QString &key :
         {u"raw:"_s + QString(32, u'k'), u"X'"_s + QString(64, u'0') + u'\''}) {
        QVERIFY(FilePassword(key).isTakenForKey());
        QVERIFY_THROWS_EXCEPTION(StoreError, changePassword(connection(), FilePassword(key)));
    }
    QCOMPARE(files(), QStringList{u"Corvana.mdb"_s});
}

void tst_changepassword::isOpenedByOtherToolsWithIt()
{
    changePassword(connection(), second);
    const auto opens = [this](const std::string &settings) {
        SQLite::Database database(m_journal->path().toStdString(), SQLite::OPEN_READONLY);
        database.exec(settings + "PRAGMA key='grüße'");
        return SQLite::Statement(database, "select count(*) from Common").executeStep();
    };
    const std::string usual = "PRAGMA cipher='sqlcipher'; PRAGMA legacy=4;";
    QVERIFY(opens(usual));
    QVERIFY(opens(usual + "PRAGMA kdf_iter=256000; PRAGMA kdf_algorithm=2;"));
    QVERIFY_THROWS_EXCEPTION(SQLite::Exception, opens(usual + "PRAGMA kdf_iter=255999;"));
}

void tst_changepassword::tellsDamageFromAWrongPassword()
{
    changePassword(connection(), first);
    const QString path = m_journal->path();
    m_journal->data->Con.exec("select 1");
    const QByteArray whole = fileBytes(path);
    for (const int page : {0, 1, 5}) {
        QByteArray bytes = whole;
        bytes.replace(page * 4096 + 100, 9, "scribbled");
        setFileBytes(path, bytes);
        QCOMPARE(refusal(path, first), damaged);
        QCOMPARE(refusal(path, second), locked);
    }
    setFileBytes(path, whole.left(9));
    QCOMPARE(refusal(path, first), damaged);
    setFileBytes(path, whole);
    QCOMPARE(refusal(path, first), std::nullopt);
}

void tst_changepassword::undoesACutShortStore()
{
    changePassword(connection(), first);
    const QStringList before = everything();
    const QString torn = m_journal->folder.filePath(u"torn.mdb"_s);
    connection().exec("PRAGMA cache_size = 5; begin; with recursive n(i) as (select 1000 union all "
                      "select i + 1 from n where i < 3000) insert into UserNote "
                      "select i, 46000, 46000, hex(randomblob(20)) from n");
    QVERIFY(QFile::copy(m_journal->path(), torn));
    QVERIFY(QFile::copy(m_journal->path() + u"-journal"_s, torn + u"-journal"_s));
    QCOMPARE(int(examineRollback(torn)), int(PendingRollback::Locked));
    QCOMPARE(int(examineRollback(torn, second)), int(PendingRollback::Locked));
    QCOMPARE(int(examineRollback(torn, first)), int(PendingRollback::Sound));
    Connection undone(torn, first);
    QCOMPARE(contentsOf(undone), before.first(contentsOf(undone).size()));
}

void tst_changepassword::goesWithOtherPrograms()
{
    Connection other(m_journal->path());
    for (const char *lock : {"begin exclusive", "begin immediate", "begin; select * from Common"}) {
        other.exec(lock);
        // A reader that only stays is one whose rows are still to come.
        SQLite::Statement reading(other.database(), "select * from Meal");
        reading.executeStep();
        const QByteArray before = fileBytes(m_journal->path());
        try {
            changePassword(connection(), first);
            QFAIL("changed under another program");
        } catch (const StoreError &error) {
            QCOMPARE(error.kind(), StoreError::Kind::Busy);
        }
        QVERIFY(fileBytes(m_journal->path()) == before);
        reading.reset();
        other.exec("rollback");
    }
#ifndef Q_OS_WIN // where it would be Busy as long as the other has it open
    changePassword(connection(), first);
    try {
        other.write("delete from Body", std::vector<Value>());
        QFAIL("stored into a file that nobody will see again");
    } catch (const StoreError &error) {
        QCOMPARE(error.kind(), StoreError::Kind::Replaced);
    }
    QCOMPARE(refusal(m_journal->path(), first), std::nullopt);
    QCOMPARE(m_journal->row("select count(*) from Body"), u"1"_s);
#endif
}

void tst_changepassword::backupsKeepTheLock()
{
    const QDateTime time = m_journal->clock.now();
    const QString place = m_journal->folder.filePath(u"b"_s);
    const QStringList contents = contentsOf(connection());
    changePassword(connection(), first);
    const QString backup =
        makeBackup(m_journal->path(), place, time, {}, first) + u"/Corvana.mdb"_s;
    QCOMPARE(refusal(backup), locked);
    QVERIFY_THROWS_EXCEPTION(StoreError, makeBackup(m_journal->path(), place, time, {}, second));
    QCOMPARE(QDir(place).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
    for (const FilePassword &wrong : {FilePassword(), second})
        QVERIFY_THROWS_EXCEPTION(StoreError, BackupFile(backup, wrong));
    // The journal keeps its own lock, or none.
    changePassword(connection(), {});
    m_journal->exec("delete from Body");
    BackupFile file(backup, first);
    restoreBackup(*m_journal->session, file.connection(), u"Restoring"_s);
    QCOMPARE(contentsOf(connection()), contents);
    QCOMPARE(refusal(m_journal->path()), std::nullopt);
}

// Without a password, so that no key has to be derived: the steps are the same.
void tst_changepassword::refusedChangeLeavesTheOld()
{
    using faultyfiles::Fault;
    const QStringList before = everything();
    int refused = 0;
    for (const Fault fault : {Fault::Full, Fault::InputOutput, Fault::Busy}) {
        for (int n = 1;; ++n) {
            faultyfiles::arm(fault, n, n % 2 == 0);
            bool isRefused = false;
            try {
                changePassword(connection(), {});
            } catch (const StoreError &) {
                isRefused = true;
            }
            const bool wasThere = faultyfiles::disarm();
            QVERIFY(everything() == before);
            QCOMPARE(files(), QStringList{u"Corvana.mdb"_s});
            if (!wasThere)
                break;
            refused += isRefused ? 1 : 0;
        }
    }
    QVERIFY2(refused > 20, qPrintable(QString::number(refused)));
}

void tst_changepassword::killsLeaveTheOneOrTheOther()
{
    enlargeJournal(*m_journal);
    m_journal->exec("delete from UserNote where UserNoteID > 1200; vacuum");
    const QStringList before = everything();
    const QString path = m_journal->path();
    QElapsedTimer timer;
    timer.start();
    changePassword(connection(), first);
    const int usual = int(timer.elapsed());
    changePassword(connection(), {});
    m_journal->session.reset();
    m_journal->data.reset();
    std::array<int, passwords.size()> found{};
    size_t with = 0;
    int cutShort = 0;
    for (int kill = 0; kill < 24; ++kill) {
        QProcess program;
        program.start(QCoreApplication::applicationFilePath(), {path, QString::number(with)});
        QVERIFY(program.waitForStarted());
        QVERIFY(program.waitForReadyRead(20'000));
        QTest::qSleep(QRandomGenerator::global()->bounded(usual * 3 / 2)); // into the next one, too
        program.kill();
        QVERIFY(program.waitForFinished());
        QCOMPARE(program.readAllStandardError(), QByteArray());
        cutShort += QFile::exists(path + u"-changing"_s) ? 1 : 0;
        QVERIFY(!QFile::exists(path + u"-journal"_s));
        for (size_t tried = 0; !m_journal->data; ++tried) {
            QVERIFY2(tried < passwords.size(), "no password opens it");
            try {
                m_journal->data = std::make_unique<deData>(path, passwords.at(with));
            } catch (const StoreError &) {
                with = (with + 1) % passwords.size();
            }
        }
        if (connection().password().isEmpty())
            with = 0; // any password opens it
        ++found.at(with);
        QCOMPARE(m_journal->row("PRAGMA integrity_check"), u"ok"_s);
        QVERIFY(everything() == before);
        m_journal->data.reset();
    }
    qInfo("%d changes cut short, found %d, %d and %d times", cutShort, found[0], found[1],
          found[2]);
    QVERIFY(cutShort > 3 && found[0] > 0 && found[1] > 0 && found[2] > 0);
}

int main(int argc, char **argv)
{
    QCoreApplication application(argc, argv);
    if (argc == 3 && QFile::exists(QString::fromLocal8Bit(argv[1]))) {
        size_t with = QByteArray(argv[2]).toUInt();
        Connection journal(QString::fromLocal8Bit(argv[1]), passwords.at(with));
        for (;;) {
            std::puts("changes");
            std::fflush(stdout);
            with = (with + 1) % passwords.size();
            changePassword(journal, passwords.at(with));
        }
    }
    faultyfiles::install();
    tst_changepassword test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_changepassword.moc"
