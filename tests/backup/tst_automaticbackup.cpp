// The backups that the program makes by itself, from its settings to the start that needs one.
#include "app/frmMain.h"
#include "app/startup.h"
#include "backup/backupplace.h"
#include "backup/backupsettings.h"
#include "backup/frmBackupSettings.h"
#include "backupsamples.h"
#include "dayjournal.h"
#include "session/installation.h"

#include <QCheckBox>
#include <QLabel>
#include <QSpinBox>

using namespace Qt::Literals;

class tst_automaticbackup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void isMadeOnceAWeek();
    void failureIsToldAtTheNextStart();
    void keepsItsSettings();
    void refusesSettings();
    void isNamedWhereTheProgramCantStart();

private:
    // The program from its start to its end; what the main window tells of backups.
    QString runProgram()
    {
        const QLocale german(QLocale::German, QLocale::Germany);
        StartUp startUp({Installation(m_folder->path()), m_clock, german, m_messages});
        if (!startUp.run())
            return {};
        const auto &notice = control<QLabel>(*startUp.mainWindow(), "lblBackup");
        if (!QTest::qWaitFor([&] { return !notice.text().isEmpty(); }))
            return {};
        QString text = notice.text();
        startUp.mainWindow()->close();
        startUp.end();
        return text;
    }
    void later(int days) { m_clock.setNow(m_clock.now().addDays(days)); }
    QString path(const QString &name) const { return m_folder->filePath(name); }
    size_t count(const QString &place) const { return backupsIn(place).size(); }

    std::unique_ptr<QTemporaryDir> m_folder;
    FixedClock m_clock{QDateTime(QDate(2026, 11, 23), QTime(8, 15))};
    RecordedMessages m_messages;
    QString m_usual;
};

void tst_automaticbackup::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    makeEmptyJournal(path(u"Corvana.mdb"_s));
    Installation(m_folder->path()).setFirstStartDone();
    m_clock.setNow(QDateTime(QDate(2026, 11, 23), QTime(8, 15)));
    m_messages.said.clear();
    m_usual = path(u"backups"_s);
}

void tst_automaticbackup::isMadeOnceAWeek()
{
    QCOMPARE(runProgram(), u"No backup yet"_s);
    QCOMPARE(contentsOf(backupsIn(m_usual).front().folder), contentsOf(m_folder->path()));
    for (int day = 1; day < 7; ++day) {
        later(1);
        QCOMPARE(runProgram(), u"Last backup: 23. Nov. 2026"_s);
        QCOMPARE(count(m_usual), size_t(1));
    }
    for (size_t week = 1; week < 12; ++week) {
        later(week == 1 ? 1 : 7);
        runProgram();
        QCOMPARE(count(m_usual), qMin(week + 1, size_t(8)));
    }
    QCOMPARE(backupsIn(m_usual).front().time, m_clock.now());
    QCOMPARE(backupsIn(m_usual).back().time, m_clock.now().addDays(-49));
    // The clock was wrong for a while.
    m_clock.setNow(m_clock.now().addYears(-1));
    for (int i = 0; i < 3; ++i) {
        runProgram();
        QCOMPARE(isBackupDue(m_usual, m_clock.now()), false);
        later(1);
    }
    QVERIFY(m_messages.said.empty());
}

void tst_automaticbackup::failureIsToldAtTheNextStart()
{
    runProgram();
    const QStringList first = QDir(m_usual).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    later(8);
    setFileBytes(path(u"file"_s), "x");
    Installation installation(m_folder->path());
    keepBackupSettings(installation, {true, path(u"file"_s), 1});
    runProgram();
    QVERIFY(m_messages.said.empty());
    keepBackupSettings(installation, {true, m_usual, 1});
    const QString told = runProgram(); // now it succeeds
    QVERIFY2(told.startsWith(u"The automatic backup failed: The folder "_s) &&
                 told.endsWith(u"Last backup: 23. Nov. 2026"_s),
             qPrintable(told));
    QCOMPARE(runProgram(), u"Last backup: 1. Dez. 2026"_s);
    QVERIFY(QDir(m_usual).entryList(QDir::Dirs | QDir::NoDotAndDotDot) != first);
    QCOMPARE(count(m_usual), size_t(1));
}

void tst_automaticbackup::keepsItsSettings()
{
    DayJournal journal;
    const Installation installation(journal.folder.path());
    const QString elsewhere = journal.folder.filePath(u"Größe 100%/deeper"_s);
    frmBackupSettings window(*journal.session, journal.messages);
    inDialog(
        "frmBackupSettings", [&] { window.exec(); },
        [&](QWidget &) {
            QCOMPARE(textOf(window, "txtFolder"),
                     QDir::toNativeSeparators(journal.folder.filePath(u"backups"_s)));
            QCOMPARE(control<QSpinBox>(window, "spnKept").value(), 8);
            control<QCheckBox>(window, "chkAutomatic").click();
            control<QLineEdit>(window, "txtFolder").setText(QDir::toNativeSeparators(elsewhere));
            typeInto(control<QSpinBox>(window, "spnKept"), u"3"_s);
            press(window, "btnOK");
            QVERIFY(!window.isVisible());
        });
    const BackupSettings kept = backupSettings(installation);
    QVERIFY(!kept.isAutomatic && kept.place == elsewhere && kept.kept == 3);
    QVERIFY(!QDir(elsewhere).exists());
    const frmBackupSettings again(*journal.session, journal.messages);
    QVERIFY(!control<QCheckBox>(again, "chkAutomatic").isChecked());
    QCOMPARE(textOf(again, "txtFolder"), QDir::toNativeSeparators(elsewhere));
    // Switched off it makes none, and what else Corvana.ini remembers is remembered still.
    Installation program(m_folder->path());
    keepBackupSettings(program, {false, m_usual, 8});
    QCOMPARE(runProgram(), u"No backup yet"_s);
    QCOMPARE(count(m_usual), size_t(0));
    QCOMPARE(program.firstStart(), Installation::FirstStart::Done);
    for (const char *nonsense : {"0", "many", "1000000"}) {
        program.setValue(u"Backup/Kept"_s, QLatin1String(nonsense));
        QCOMPARE(backupSettings(program).kept, 8);
    }
    // The usual folder goes along with a folder that is moved.
    QVERIFY(program.value(u"Backup/Folder"_s).isEmpty());
}

void tst_automaticbackup::refusesSettings()
{
    DayJournal journal;
    setFileBytes(journal.folder.filePath(u"file"_s), "x");
    frmBackupSettings window(*journal.session, journal.messages);
    inDialog(
        "frmBackupSettings", [&] { window.exec(); },
        [&](QWidget &) {
            const QString refusal = u"Backups can't be written into this folder"_s;
            type(window, "txtFolder", u" "_s);
            journal.refuses(window, "txtFolder", u"The Folder should be specified"_s, u"backups"_s);
            journal.refuses(window, "txtFolder", refusal,
                            journal.folder.filePath(u"file/deeper"_s));
            journal.refuses(window, "txtFolder", refusal, journal.folder.filePath(u"new"_s));
            // Nor can Corvana.ini be replaced by what is a folder.
            QVERIFY(QDir(journal.folder.path()).mkdir(u"Corvana.ini"_s));
            press(window, "btnOK");
            QVERIFY(journal.messages.said.back().cause.contains("Corvana.ini"));
            QCOMPARE(journal.messages.takeText(), u"The settings can't be kept"_s);
            QVERIFY(window.isVisible());
        });
    QVERIFY(!QDir(journal.folder.filePath(u"new"_s)).exists());
}

void tst_automaticbackup::isNamedWhereTheProgramCantStart()
{
    const QString database = path(u"Corvana.mdb"_s);
    const auto causeOfRefusal = [&] {
        m_messages.said.clear();
        const QByteArray before = fileBytes(database);
        if (!runProgram().isEmpty() || m_messages.said.size() != 1 ||
            fileBytes(database) != before || m_messages.said.front().title != u"Severe Error"_s ||
            !m_messages.said.front().text.startsWith(u"Can't access database."_s))
            return u"not refused"_s;
        return m_messages.said.front().cause;
    };
    const QByteArray whole = fileBytes(database);
    QFile::remove(database);
    QCOMPARE(causeOfRefusal(), QString()); // there is none yet
    setFileBytes(database, whole);
    runProgram();
    const QString folder = backupsIn(m_usual).front().folder;
    for (const QByteArray &spoilt : {QByteArray(), QByteArray(65536, 'x')}) {
        setFileBytes(database, spoilt);
        const QString cause = causeOfRefusal();
        QVERIFY2(cause.contains(QDir::toNativeSeparators(folder)) &&
                     cause.contains(u"23. Nov. 2026"_s),
                 qPrintable(cause));
    }
    setFileBytes(database, whole);
    {
        Connection other(database);
        other.exec("begin exclusive"); // nothing is lost
        QCOMPARE(causeOfRefusal(), u"Another program is using the database."_s);
    }
    // As it is told: the backup takes the file's place.
    QFile::remove(database);
    QVERIFY(QFile::copy(folder + u"/Corvana.mdb"_s, database));
    QCOMPARE(runProgram(), u"Last backup: 23. Nov. 2026"_s);
}

QTEST_MAIN(tst_automaticbackup)
#include "tst_automaticbackup.moc"
