// From the program's start to its main window: databases that can't be used, the first start.
#include "app/frmMain.h"
#include "app/startup.h"
#include "guitest.h"
#include "session/installation.h"
#include "testjournal.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>

#ifdef Q_OS_WIN
#include <windows.h>

#include <sddl.h>
#else
#include <sys/stat.h>
#include <unistd.h>
#endif

using namespace Qt::Literals;

namespace {

// A program's folder, and what is said when the program in it is started.
struct TestProgram
{
    TestProgram() { makeEmptyJournal(database); }

    QByteArray bytes() const { return fileBytes(database); }
    std::unique_ptr<StartUp> startUp()
    {
        const QLocale british(QLocale::English, QLocale::UnitedKingdom);
        return std::make_unique<StartUp>(StartUpSettings{installation, clock, british, messages});
    }
    bool isFirstStartDone() const
    {
        return Installation(folder.path()).firstStart() == Installation::FirstStart::Done;
    }

    QTemporaryDir folder;
    QString database = folder.filePath(u"Corvana.mdb"_qs);
    Installation installation{folder.path()};
    FixedClock clock{QDateTime(QDate(2026, 1, 11), QTime(8, 0))};
    RecordedMessages messages;
};

// Starts, with the steps on the dialog of the common parameters.
bool firstStart(StartUp &startUp, const std::function<void(QWidget &)> &steps)
{
    bool started = false;
    inDialog(
        "frmCommon", [&] { started = startUp.run(); }, steps);
    return started;
}

// Said once, in the words that help; nothing shown, nothing written, nothing left behind.
void verifyRefused(TestProgram &program, const std::function<bool()> &run)
{
    const auto files = [&] { return QDir(program.folder.path()).entryList(QDir::Files); };
    const QByteArray before = program.bytes();
    const QStringList filesBefore = files();
    program.messages.said.clear();
    QVERIFY(!run());
    QCOMPARE(program.messages.said.size(), size_t(1));
    QCOMPARE(program.messages.said.front().icon, Messages::Icon::Critical);
    QCOMPARE(program.messages.said.front().title, u"Severe Error"_qs);
    QCOMPARE(program.messages.said.front().text,
             u"Can't access database. Please make sure the database file Corvana.mdb "
             "is present in the program folder."_qs);
    QCOMPARE(files(), filesBefore);
    QVERIFY(program.bytes() == before);
    for (QWidget *window : QApplication::topLevelWidgets())
        QVERIFY(!window->isVisible());
}

} // namespace

class tst_startup : public QObject
{
    Q_OBJECT

private slots:
    void refusesUnusableDatabases();
    void refusesByPermissions();
    void usersOfAnInstalledProgram();
    void firstStartInItsOrder();
    void unfinishedFirstStartBeginsAnew();
    void damagedMemoryMovesNothing();
    void undoesOnlyItsOwnStore();
    void oddParametersLetItStart();
};

void tst_startup::refusesUnusableDatabases()
{
    TestProgram program;
    const auto refuses = [&] { verifyRefused(program, [&] { return program.startUp()->run(); }); };
    const QByteArray whole = program.bytes();
    // A program that only writes at the moment is waited for, but not for ever.
    for (const char *lock : {"begin exclusive", "begin immediate"}) {
        Connection other(program.database);
        other.exec(lock);
        refuses();
    }
    for (const std::string other : {"drop table UserNote", "alter table Body drop column Hips",
                                    "drop trigger CommonKeepsItsRow; delete from Common",
                                    "drop index CommonHasOneRow;"
                                    "insert into Common select * from Common"}) {
        setFileBytes(program.database, whole);
        Connection(program.database).exec(("drop index MealByCategory;" + other).c_str());
        refuses();
    }
    for (const QByteArray &spoilt : {whole.chopped(4096), QByteArray(65536, 'x'), QByteArray()}) {
        setFileBytes(program.database, spoilt);
        refuses();
    }
    QFile::remove(program.database);
    refuses();
}

#ifdef Q_OS_WIN
void tst_startup::refusesByPermissions()
{
    TestProgram program;
    const auto refuses = [&] { verifyRefused(program, [&] { return program.startUp()->run(); }); };
    const auto path = [](const QString &name) {
        return QDir::toNativeSeparators(name).toStdWString();
    };
    // Kept by another program from being written.
    const HANDLE kept = CreateFileW(path(program.database).c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    QVERIFY(kept != INVALID_HANDLE_VALUE);
    refuses();
    CloseHandle(kept);
    QVERIFY(QFile::setPermissions(program.database, QFile::ReadOwner));
    const bool isBound = !QFile(program.database).open(QIODevice::ReadWrite);
    if (isBound)
        refuses();
    QVERIFY(QFile::setPermissions(program.database, QFile::ReadOwner | QFile::WriteOwner));
    if (!isBound)
        QSKIP("This is Wine, run by root, whom no permission binds");
    // A folder in which everybody may read and its owner change the rights.
    const auto setRights = [&](const wchar_t *rights) {
        PSECURITY_DESCRIPTOR descriptor = nullptr;
        QVERIFY(ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1,
                                                                     &descriptor, nullptr));
        QVERIFY(SetFileSecurityW(path(program.folder.path()).c_str(), DACL_SECURITY_INFORMATION,
                                 descriptor));
        LocalFree(descriptor);
    };
    setRights(L"D:P(A;;GRGXWD;;;WD)");
    refuses();
    setRights(L"D:P(A;OICI;GA;;;WD)");
}
#else
// Permissions don't bind root, whom builds in containers often run as: it steps down to nobody.
void tst_startup::refusesByPermissions()
{
    TestProgram program;
    constexpr uid_t nobody = 65534;
    const bool isRoot = geteuid() == 0;
    const QByteArray folder = program.folder.path().toLocal8Bit();
    const QByteArray file = program.database.toLocal8Bit();
    QVERIFY(!isRoot || (chown(folder, nobody, gid_t(-1)) == 0 && chown(file, nobody, 0) == 0));
    const auto startAsNobody = [&] {
        // Root remains the saved user, to whom the way back is open.
        if (isRoot && setresuid(nobody, nobody, 0) != 0)
            qFatal("this process can't step down from root");
        const bool started = program.startUp()->run();
        if (isRoot && setresuid(0, 0, 0) != 0)
            qFatal("this process can't become root again");
        return started;
    };
    for (const auto &[folderMode, fileMode] : {std::pair(0755, 0444), std::pair(0555, 0644),
                                               std::pair(0755, 0000), std::pair(0600, 0644)}) {
        QVERIFY(chmod(file, mode_t(fileMode)) == 0 && chmod(folder, mode_t(folderMode)) == 0);
        verifyRefused(program, startAsNobody);
        QVERIFY(chmod(folder, 0700) == 0); // so that it can be removed
    }
}
#endif

// The delivered journal stays as it is, and where the user's can't be is said.
void tst_startup::usersOfAnInstalledProgram()
{
#ifdef Q_OS_WIN
    QSKIP("Nothing is installed by packages of the system");
#endif
    TestProgram program;
    const QDir root(program.folder.path());
    const auto path = [&](const QString &name) { return root.filePath(name); };
    QVERIFY(root.mkpath(u"bin"_qs) && root.mkpath(u"share/corvana"_qs));
    QVERIFY(QFile::rename(program.database, path(u"share/corvana/Corvana.mdb"_qs)));
    qputenv("XDG_DATA_HOME", path(u"home"_qs).toLocal8Bit());
    program.installation = Installation::ofExecutableIn(path(u"bin"_qs));
    setFileBytes(path(u"home"_qs), "a file");
    QVERIFY(!program.startUp()->run());
    const QString folder = QDir::toNativeSeparators(path(u"home/Corvana"_qs));
    QVERIFY(program.messages.takeText().contains(folder));
    QVERIFY(QFile::remove(path(u"home"_qs)));

    const QByteArray delivered = fileBytes(path(u"share/corvana/Corvana.mdb"_qs));
    QVERIFY(firstStart(*program.startUp(),
                       [](QWidget &dialog) { control<QPushButton>(dialog, "btnOK").click(); }));
    QCOMPARE(program.installation.firstStart(), Installation::FirstStart::Done);
    QVERIFY(fileBytes(path(u"share/corvana/Corvana.mdb"_qs)) == delivered);
    QVERIFY(fileBytes(path(u"home/Corvana/Corvana.mdb"_qs)) != delivered);
    QVERIFY(QFile::remove(path(u"home/Corvana/Corvana.mdb"_qs)));
    program.messages.said.clear();
    QVERIFY(!program.startUp()->run());
    QVERIFY(program.messages.said.front().cause.contains(folder));
}

void tst_startup::firstStartInItsOrder()
{
    TestProgram program;
    Connection other(program.database);
    other.exec("insert into Body values (-1, 46000, 70, 90, 80, 95, 'M')");
    const auto startUp = program.startUp();
    const bool started = firstStart(*startUp, [&](QWidget &dialog) {
        // The message came first, and there is no window behind the dialog.
        QCOMPARE(program.messages.said.size(), size_t(1));
        QCOMPARE(program.messages.said.front().text,
                 u"Because it is a very first start of this program, you will be prompted now to "
                 "specify common parameters."_qs);
        QVERIFY(!startUp->mainWindow());
        QCOMPARE(queryRows(other, "select DateMeasured from Body"), QStringList{u"46000"_qs});
        // It can only be accepted.
        QVERIFY(!control<QPushButton>(dialog, "btnCancel").isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
        QVERIFY(dialog.isVisible() && !dialog.close());
        typeInto(control<QLineEdit>(dialog, "txtWeight"), u"82"_qs);
        QTest::keyClick(&control<QLineEdit>(dialog, "txtWeight"), Qt::Key_Return);
    });
    QVERIFY(started);
    QVERIFY(startUp->mainWindow()->isVisible());
    QVERIFY(program.isFirstStartDone());
    // Ten days after 1 January, to which the sample journal was prepared.
    QCOMPARE(queryRows(other, "select DateMeasured, installDate, Common.weight from Body, Common"),
             QStringList{u"46010|46033|82"_qs});
    // Later starts go straight to the main window and move nothing.
    program.clock.setNow(QDateTime(QDate(2026, 1, 15), QTime(8, 0)));
    QVERIFY(program.startUp()->run());
    QCOMPARE(queryRows(other, "select DateMeasured from Body"), QStringList{u"46010"_qs});
    QCOMPARE(program.messages.said.size(), size_t(1)); // of recalculated data nothing is said
}

void tst_startup::unfinishedFirstStartBeginsAnew()
{
    TestProgram program;
    const QByteArray before = program.bytes();
    // As when the desktop's session ends while the dialog is open.
    QVERIFY(!firstStart(*program.startUp(), [](QWidget &dialog) {
        dynamic_cast<QDialog &>(dialog).done(QDialog::Rejected);
    }));
    QVERIFY(program.bytes() == before);
    program.clock.setNow(QDateTime(QDate(2126, 1, 1), QTime(8, 0))); // too far for 16 bits
    QVERIFY(!firstStart(*program.startUp(),
                        [](QWidget &dialog) { control<QPushButton>(dialog, "btnOK").click(); }));
    QCOMPARE(program.messages.said.back().title, u"Severe Error"_qs);
    QVERIFY(!program.isFirstStartDone());
}

// The user's measurements stay on their days.
void tst_startup::damagedMemoryMovesNothing()
{
    TestProgram program;
    const QByteArray before = program.bytes();
    setFileBytes(program.folder.filePath(u"Corvana.ini"_qs), {});
    QVERIFY(program.startUp()->run());
    QVERIFY(program.messages.takeText().contains("Corvana.ini"));
    QVERIFY(program.startUp()->run());
    QVERIFY(program.messages.said.empty()); // it has been put right
    QVERIFY(program.bytes() == before);
}

void tst_startup::undoesOnlyItsOwnStore()
{
    TestProgram program;
    Installation(program.folder.path()).setFirstStartDone();
    const QString journal = program.database + u"-journal"_qs;
    const QByteArray copy = program.bytes();
    // More rows than the engine keeps in memory: some are in the file before the store is whole.
    QByteArray torn;
    QByteArray rollback;
    {
        Connection other(program.database);
        other.exec("insert into Body values (1, 46000, 70, 90, 80, 95, 'M')");
        other.exec("PRAGMA cache_size = 5; begin; with recursive n(i) as (select 1 union all"
                   " select i + 1 from n where i < 2000)"
                   " insert into UserNote select i, 46000, 46000, hex(randomblob(20)) from n");
        torn = program.bytes();
        rollback = fileBytes(journal);
    }
    QVERIFY(torn.size() > copy.size());
    const auto start = [&](const QByteArray &database) {
        program.messages.said.clear();
        setFileBytes(program.database, database);
        setFileBytes(journal, rollback);
        return program.startUp()->run();
    };
    QVERIFY(start(torn));
    QByteArray damaged = torn;
    damaged.replace(qsizetype(7) * 4096, 4096, QByteArray(4096, 'x'));
    for (const auto &[database, advice] :
         {std::pair(copy, "put back a copy?"), std::pair(damaged, "the file is damaged")}) {
        QVERIFY(!start(database));
        QVERIFY(program.messages.said.back().cause.contains(QLatin1String(advice)));
        QVERIFY(program.bytes() == database && fileBytes(journal) == rollback);
    }
    // What another tool leaves of a store that is done stands for nothing.
    for (const QByteArray &done :
         {QByteArray(), QByteArray(rollback).replace(0, 28, QByteArray(28, '\0'))}) {
        rollback = done;
        QVERIFY(start(copy));
    }
}

void tst_startup::oddParametersLetItStart()
{
    for (const char *odd : {"weight = 1e300", "weight = 'heavy', metabolicRate = -9e999"}) {
        TestProgram program;
        Installation(program.folder.path()).setFirstStartDone();
        Connection(program.database).exec(("update Common set " + std::string(odd)).c_str());
        const auto startUp = program.startUp();
        QVERIFY(startUp->run());
        QVERIFY(program.messages.said.front().cause.contains("Common"));
        QCOMPARE(startUp->session()->parameters(), CommonParameters{.measurement = u"M"_qs});
    }
}

QTEST_MAIN(tst_startup)
#include "tst_startup.moc"
