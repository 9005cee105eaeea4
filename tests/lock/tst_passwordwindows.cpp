// The password as a person sets it, types it at the next start, and restores with it.
#include "app/frmMain.h"
#include "app/startup.h"
#include "backup/backupplace.h"
#include "backup/makebackup.h"
#include "dayjournal.h"
#include "lock/changepassword.h"
#include "session/installation.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QListWidget>

using namespace Qt::Literals;

class tst_passwordwindows : public QObject
{
    Q_OBJECT

private slots:
    void setsChangesAndTakesAway();
    void asksAtTheStart();
    void saysThatALockedJournalIsDamaged();
    void restoringAsks();
};

namespace {

const FilePassword secret(u"Geheim 1"_s);

void openPassword(const frmMain &window, const std::function<void(QWidget &)> &steps)
{
    inDialog(
        "frmPassword", [&] { control<QAction>(window, "mnuPassword").trigger(); }, steps);
}

// A program whose journal is locked.
struct LockedProgram
{
    LockedProgram()
    {
        makeEmptyJournal(path());
        Installation(folder.path()).setFirstStartDone();
        Connection journal(path());
        changePassword(journal, secret);
    }

    QString path() const { return folder.filePath(u"Corvana.mdb"_s); }
    bool start(const std::function<void(QWidget &)> &steps)
    {
        startUp = std::make_unique<StartUp>(
            StartUpSettings{Installation(folder.path()), clock, QLocale::c(), messages});
        bool isStarted = false;
        inDialog(
            "frmUnlock", [&] { isStarted = startUp->run(); }, steps);
        return isStarted;
    }

    QTemporaryDir folder;
    FixedClock clock{QDateTime(QDate(2026, 11, 23), QTime(8, 15))};
    RecordedMessages messages;
    std::unique_ptr<StartUp> startUp;
};

} // namespace

void tst_passwordwindows::setsChangesAndTakesAway()
{
    DayJournal journal;
    const Connection &connection = journal.data->Con;
    frmMain window(*journal.session, journal.messages);
    window.show();
    activate(window);
    openPassword(window, [&](QWidget &dialog) {
        QVERIFY(!dialog.findChild<QLineEdit *>(u"txtCurrent"_s));
        auto &box = control<QLineEdit>(dialog, "txtNew");
        QVERIFY(box.hasFocus());
        journal.refuses(dialog, "txtNew", u"The New Password should be specified"_s,
                        u"raw:0123456789abcdef0123456789abcdef"_s);
        journal.refuses(dialog, "txtNew", u"The New Password can't begin with raw: or with x'"_s,
                        u"Geheim 1"_s);
        type(dialog, "txtRepeated", u"Geheim 2"_s);
        QCOMPARE(box.displayText(), box.text().fill(box.displayText().front()));
        control<QCheckBox>(dialog, "chkShow").click();
        QCOMPARE(box.displayText(), u"Geheim 1"_s);
        journal.refuses(dialog, "txtRepeated", u"The two passwords are not the same"_s,
                        u"Geheim 1"_s);
        journal.exec("begin");
        press(dialog, "btnOK");
        journal.exec("rollback");
        QCOMPARE(journal.messages.takeText(), u"The password can't be changed"_s);
        QVERIFY(dialog.isVisible() && connection.password().isEmpty());
        press(dialog, "btnOK");
        QVERIFY(!dialog.isVisible());
    });
    QVERIFY(journal.messages.takeText().startsWith(u"The journal is locked"_s));
    QCOMPARE(connection.password(), secret);
    // The windows go on.
    control<QAction>(window, "mnuNextDay").trigger();
    QVERIFY(journal.messages.said.empty());

    openPassword(window, [&](QWidget &dialog) {
        QVERIFY(control<QLineEdit>(dialog, "txtCurrent").hasFocus());
        journal.refuses(dialog, "txtCurrent", u"The Current Password should be specified"_s,
                        u"geheim 1"_s);
        control<QCheckBox>(dialog, "chkRemove").click();
        journal.refuses(dialog, "txtCurrent", u"This password does not open Corvana.mdb"_s,
                        u"Geheim 1"_s);
        QVERIFY(!control<QLineEdit>(dialog, "txtNew").isEnabled());
        press(dialog, "btnOK");
    });
    QCOMPARE(journal.messages.takeText(), u"The journal has no password any more."_s);
    QVERIFY(Connection(journal.path()).password().isEmpty());
}

void tst_passwordwindows::asksAtTheStart()
{
    LockedProgram program;
    setFileBytes(program.path() + u"-changing"_s, "left by a kill");
    const QByteArray before = fileBytes(program.path());
    QVERIFY(!program.start([](QWidget &) {})); // given up
    QVERIFY(program.messages.said.empty());
    QVERIFY(fileBytes(program.path()) == before);
    QVERIFY(!QFile::exists(program.path() + u"-changing"_s));
    QVERIFY(program.start([&](QWidget &dialog) {
        auto &box = control<QLineEdit>(dialog, "txtPassword");
        QVERIFY(box.hasFocus());
        for (const auto &[typed, said] :
             {std::pair(u""_s, u"The Password should be specified"_s),
              std::pair(u"geheim 1"_s, u"This password does not open Corvana.mdb"_s)}) {
            typeInto(box, typed);
            pressKey(Qt::Key_Return);
            QCOMPARE(program.messages.takeText(), said);
            QVERIFY(dialog.isVisible() && box.hasFocus());
            QCOMPARE(box.text(), typed);
            QCOMPARE(box.selectedText().size(), typed.size());
        }
        typeKeys(u"Geheim 1"_s); // over what is selected
        pressKey(Qt::Key_Return);
    }));
    QVERIFY(program.startUp->mainWindow()->isVisible());
    program.startUp->mainWindow()->close();
    program.startUp->end();
    const std::vector<Backup> backups = backupsIn(program.folder.filePath(u"backups"_s));
    QCOMPARE(backups.size(), size_t(1));
    QVERIFY_THROWS_EXCEPTION(StoreError, Connection(backups.front().databasePath()));
    QCOMPARE(Connection(backups.front().databasePath(), secret).password(), secret);
}

void tst_passwordwindows::saysThatALockedJournalIsDamaged()
{
    LockedProgram program;
    setFileBytes(program.path(), fileBytes(program.path()).replace(99, 5, "spoil"));
    QVERIFY(!program.start([&](QWidget &dialog) {
        type(dialog, "txtPassword", u"Geheim 1"_s);
        press(dialog, "btnOK");
        QVERIFY(!dialog.isVisible());
    }));
    QCOMPARE(program.messages.said.size(), size_t(1));
    QCOMPARE(program.messages.said.front().cause,
             u"The password is right, but the file is damaged."_s);
    QVERIFY(program.messages.takeText().startsWith(u"Can't access database."_s));
}

void tst_passwordwindows::restoringAsks()
{
    DayJournal journal;
    Connection &connection = journal.data->Con;
    const QDateTime time = journal.clock.now();
    const QString place = journal.folder.filePath(u"backups"_s);
    changePassword(connection, secret);
    makeBackup(journal.path(), place, time, {}, secret);
    changePassword(connection, FilePassword(u"Another"_s));
    makeBackup(journal.path(), place, time.addDays(1), {}, connection.password());
    const QStringList meals = journal.rows("select * from Meal");
    journal.exec("delete from UserNote; update Meal set Unit = 'spoilt'");
    frmMain window(*journal.session, journal.messages);
    window.show();
    activate(window);
    inDialog(
        "frmRestore", [&] { control<QAction>(window, "mnuRestore").trigger(); },
        [&](QWidget &dialog) {
            const auto &contents = control<QLabel>(dialog, "lblContents");
            const auto &unlock = control<QPushButton>(dialog, "btnUnlock");
            const auto &restore = control<QPushButton>(dialog, "btnOK");
            // The journal's own opens the newest.
            QVERIFY(contents.text().contains("is whole") && !unlock.isEnabled());
            control<QListWidget>(dialog, "lstBackups").setCurrentRow(1);
            QVERIFY(contents.text().contains("another password") && !restore.isEnabled());
            press(dialog, "btnUnlock", "frmUnlock", [&](QWidget &question) {
                QVERIFY(control<QLabel>(question, "lblFile").text().contains("12-30-45"));
                type(question, "txtPassword", u"Wrong"_s);
                press(question, "btnOK");
                QCOMPARE(journal.messages.takeText(), u"This password does not open Corvana.mdb"_s);
                type(question, "txtPassword", u"Geheim 1"_s);
                press(question, "btnOK");
                QVERIFY(!question.isVisible());
            });
            QVERIFY(contents.text().contains("is whole") && restore.isEnabled());
            journal.messages.answers = {true};
            press(dialog, "btnOK");
            QVERIFY(!dialog.isVisible());
        });
    QVERIFY(journal.messages.takeText().startsWith(u"The backup is restored."_s));
    QCOMPARE(journal.rows("select * from Meal"), meals);
    QCOMPARE(Connection(journal.path(), FilePassword(u"Another"_s)).password(),
             connection.password());
}

QTEST_MAIN(tst_passwordwindows)
#include "tst_passwordwindows.moc"
