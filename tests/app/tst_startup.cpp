// From the program's start to its main window: databases that can't be used, the first start.
#include "app/frmMain.h"
#include "app/startup.h"
#include "guitest.h"
#include "session/installation.h"
#include "testjournal.h"
#include "unprivileged.h"

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

using namespace Qt::Literals;

namespace {

// A program's folder, and what is said when the program in it is started.
class TestProgram
{
public:
    TestProgram() { makeEmptyJournal(databasePath()); }

    QString databasePath() const { return folder.filePath(u"Corvana.mdb"_qs); }
    QByteArray bytes() const
    {
        QFile file(databasePath());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    void write(const QByteArray &bytes) const
    {
        QFile file(databasePath());
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("the database can't be written");
    }
    QStringList files() const
    {
        return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }
    std::unique_ptr<StartUp> startUp()
    {
        const QLocale british(QLocale::English, QLocale::UnitedKingdom);
        return std::make_unique<StartUp>(StartUpSettings{folder.path(), clock, british, messages});
    }
    QString row(const char *sql) const
    {
        Connection connection(databasePath());
        SQLite::Statement statement(connection.database(), sql);
        QStringList columns;
        if (statement.executeStep()) {
            for (int i = 0; i < statement.getColumnCount(); ++i)
                columns += columnValue(statement, i).toText();
        }
        return columns.join(u'|');
    }
    bool isFirstStartDone() const { return Installation(folder.path()).isFirstStartDone(); }

    QTemporaryDir folder;
    FixedClock clock{QDateTime(QDate(2026, 1, 11), QTime(8, 0))};
    RecordedMessages messages;
};

const QString firstStartMessage =
    u"Because it is a very first start of this program, you will be prompted now to specify "
    "common parameters."_qs;

using Spoiling = void (*)(TestProgram &);

} // namespace

Q_DECLARE_METATYPE(Spoiling)

class tst_startup : public QObject
{
    Q_OBJECT

private slots:
    void refusesUnusableDatabases_data();
    void refusesUnusableDatabases();
    void refusesLockedDatabase();
    void refusesByPermissions_data();
    void refusesByPermissions();
    void badParametersEndTheStart();

    void firstStartInItsOrder();
    void firstDialogCanOnlyBeAccepted();
    void interruptedFirstStartBeginsAnew();
    void failedMoveBeginsAnew();
    void laterStartsGoStraightToTheMainWindow();

private:
    void verifyRefused(TestProgram &program, const std::function<bool()> &run);
};

// Said once, in the words that help; nothing shown, nothing written, nothing left behind.
void tst_startup::verifyRefused(TestProgram &program, const std::function<bool()> &run)
{
    const QByteArray before = program.bytes();
    const QStringList filesBefore = program.files();
    QVERIFY(!run());
    QCOMPARE(program.messages.said.size(), size_t(1));
    const RecordedMessages::Said &said = program.messages.said.front();
    QCOMPARE(said.icon, Messages::Icon::Critical);
    QCOMPARE(said.title, u"Severe Error"_qs);
    QCOMPARE(said.text, u"Can't access database. Please make sure the database file Corvana.mdb "
                        "is present in the program folder."_qs);
    QCOMPARE(program.files(), filesBefore);
    QVERIFY(program.bytes() == before);
    for (QWidget *window : QApplication::topLevelWidgets())
        QVERIFY(!window->isVisible());
}

void tst_startup::refusesUnusableDatabases_data()
{
    QTest::addColumn<Spoiling>("spoil");
    const auto add = [](const char *name, Spoiling spoil) { QTest::newRow(name) << spoil; };
    add("missing", [](TestProgram &program) { QFile::remove(program.databasePath()); });
    add("a folder", [](TestProgram &program) {
        QFile::remove(program.databasePath());
        QDir(program.folder.path()).mkdir(u"Corvana.mdb"_qs);
    });
    add("empty", [](TestProgram &program) { program.write({}); });
    add("truncated",
        [](TestProgram &program) { program.write(program.bytes().left(3 * 4096 + 100)); });
    add("last page lost",
        [](TestProgram &program) { program.write(program.bytes().chopped(4096)); });
    add("garbage", [](TestProgram &program) { program.write(QByteArray(100'000, '\x5a')); });
    add("plain database", [](TestProgram &program) {
        QFile::remove(program.databasePath());
        SQLite::Database(program.databasePath().toStdString(),
                         SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE)
            .exec("create table Common (weight)");
    });
    add("encrypted, without these tables", [](TestProgram &program) {
        QFile::remove(program.databasePath());
        Connection::create(program.databasePath())->exec("create table Common (weight)");
    });
}

void tst_startup::refusesUnusableDatabases()
{
    QFETCH(Spoiling, spoil);
    TestProgram program;
    spoil(program);
    verifyRefused(program, [&] { return program.startUp()->run(); });
}

void tst_startup::refusesLockedDatabase()
{
    TestProgram program;
    Connection other(program.databasePath());
    other.exec("begin exclusive");
    verifyRefused(program, [&] { return program.startUp()->run(); });
    // A program that only writes at the moment is waited for, but not for ever.
    program.messages.said.clear();
    other.exec("rollback; begin immediate");
    verifyRefused(program, [&] { return program.startUp()->run(); });
}

void tst_startup::refusesByPermissions_data()
{
    QTest::addColumn<int>("folderMode");
    QTest::addColumn<int>("fileMode");
    QTest::newRow("read-only file") << 0755 << 0444;
    QTest::newRow("read-only folder") << 0555 << 0644;
    QTest::newRow("unreadable file") << 0755 << 0000;
    QTest::newRow("folder that can't be entered") << 0600 << 0644;
}

void tst_startup::refusesByPermissions()
{
    QFETCH(int, folderMode);
    QFETCH(int, fileMode);
    TestProgram program;
    setOwnPermissions(program.databasePath(), static_cast<mode_t>(fileMode));
    setOwnPermissions(program.folder.path(), static_cast<mode_t>(folderMode));
    const auto restore = qScopeGuard([&] {
        setOwnPermissions(program.folder.path(), 0700);
        setOwnPermissions(program.databasePath(), 0600);
    });
    verifyRefused(program, [&] {
        const Unprivileged nobody;
        return program.startUp()->run();
    });
}

void tst_startup::badParametersEndTheStart()
{
    TestProgram program;
    Connection(program.databasePath()).exec("update Common set weight = 1e6");
    const auto startUp = program.startUp();
    QVERIFY(!startUp->run());
    QCOMPARE(program.messages.said.size(), size_t(1));
    QCOMPARE(program.messages.said.front().title, u"Severe Error"_qs);
    QVERIFY(!startUp->mainWindow());
}

void tst_startup::firstStartInItsOrder()
{
    TestProgram program;
    Connection(program.databasePath())
        .exec("insert into Body values (-1, 46000, 70, 90, 80, 95, 'M')");
    const auto startUp = program.startUp();
    bool started = false;
    inDialog(
        "frmCommon", [&] { started = startUp->run(); },
        [&](QWidget &dialog) {
            // The message came first, and there is no window behind the dialog.
            QCOMPARE(program.messages.said.size(), size_t(1));
            QCOMPARE(program.messages.said.front().text, firstStartMessage);
            QCOMPARE(program.messages.said.front().icon, Messages::Icon::Information);
            QVERIFY(!startUp->mainWindow());
            QVERIFY(!program.isFirstStartDone());
            QCOMPARE(program.row("select DateMeasured from Body"), u"46000"_qs);
            typeInto(control<QLineEdit>(dialog, "txtWeight"), u"82"_qs);
            QTest::mouseClick(&control<QPushButton>(dialog, "btnOK"), Qt::LeftButton);
        });
    QVERIFY(started);
    QVERIFY(startUp->mainWindow()->isVisible());
    QVERIFY(program.isFirstStartDone());
    QCOMPARE(startUp->session()->parameters().weight, qint16(82));
    // Ten days after 1 January, to which the sample journal was prepared.
    QCOMPARE(program.row("select DateMeasured, installDate, Common.weight from Body, Common"),
             u"46010|46033|82"_qs);
    QCOMPARE(program.messages.said.size(), size_t(1)); // of recalculated data nothing is said
}

void tst_startup::firstDialogCanOnlyBeAccepted()
{
    TestProgram program;
    const auto startUp = program.startUp();
    inDialog(
        "frmCommon", [&] { startUp->run(); },
        [&](QWidget &dialog) {
            QVERIFY(!control<QPushButton>(dialog, "btnCancel").isEnabled());
            QTest::keyClick(&dialog, Qt::Key_Escape);
            QVERIFY(dialog.isVisible());
            QVERIFY(!dialog.close());
            QVERIFY(dialog.isVisible());
            QTest::keyClick(&control<QLineEdit>(dialog, "txtWeight"), Qt::Key_Return);
        });
    QVERIFY(program.isFirstStartDone());
}

void tst_startup::interruptedFirstStartBeginsAnew()
{
    TestProgram program;
    const QByteArray before = program.bytes();
    for (int start = 0; start < 2; ++start) {
        program.messages.said.clear();
        const auto startUp = program.startUp();
        bool started = true;
        // As when the desktop's session ends while the dialog is open.
        inDialog(
            "frmCommon", [&] { started = startUp->run(); },
            [](QWidget &dialog) { dynamic_cast<QDialog &>(dialog).done(QDialog::Rejected); });
        QVERIFY(!started);
        QVERIFY(!startUp->mainWindow());
        QCOMPARE(program.messages.takeText(), firstStartMessage);
        QVERIFY(!program.isFirstStartDone());
        QVERIFY(program.bytes() == before);
    }
}

void tst_startup::failedMoveBeginsAnew()
{
    TestProgram program;
    program.clock.setNow(QDateTime(QDate(2126, 1, 1), QTime(8, 0))); // too far for 16 bits
    const auto start = [&] {
        const auto startUp = program.startUp();
        bool started = false;
        inDialog(
            "frmCommon", [&] { started = startUp->run(); },
            [](QWidget &dialog) {
                QTest::mouseClick(&control<QPushButton>(dialog, "btnOK"), Qt::LeftButton);
            });
        return started;
    };
    QVERIFY(!start());
    QCOMPARE(program.messages.said.back().title, u"Severe Error"_qs);
    QVERIFY(!program.isFirstStartDone());
    program.clock.setNow(QDateTime(QDate(2026, 1, 5), QTime(8, 0))); // the clock is put right
    QVERIFY(start());
    QVERIFY(program.isFirstStartDone());
}

void tst_startup::laterStartsGoStraightToTheMainWindow()
{
    TestProgram program;
    Installation(program.folder.path()).setFirstStartDone();
    // The database was replaced since: its dates are not moved again.
    const auto startUp = program.startUp();
    QVERIFY(startUp->run());
    QVERIFY(program.messages.said.empty());
    QVERIFY(startUp->mainWindow()->isVisible());
    QCOMPARE(startUp->session()->currentDate(), QDate(2026, 1, 11));
    QCOMPARE(program.row("select installDate from Common"), u"46023"_qs);
}

QTEST_MAIN(tst_startup)
#include "tst_startup.moc"
