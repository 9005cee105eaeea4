// What a journal must outlive: a killed program, a second program, a full disk.
#include "data/identifiers.h"
#include "guitest.h"
#include "journal/frmMealConsume.h"
#include "testjournal.h"
#include "ui/datacombo.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

using namespace Qt::Literals;

namespace {

// What store_rows said that it did.
struct Report
{
    QSet<QString> taken; ///< "MealConsume 7"
    QSet<QString> stored;

    void add(const QByteArray &output)
    {
        // The last line of a killed program may be cut.
        const auto complete = output.left(output.lastIndexOf('\n') + 1);
        for (const QByteArray &line : complete.split('\n')) {
            const QString row = QString::fromLatin1(line.mid(line.indexOf(' ') + 1));
            if (line.startsWith("taken ")) {
                QVERIFY2(!taken.contains(row), line.constData());
                taken += row;
            } else if (line.startsWith("stored ")) {
                stored += row;
            }
        }
    }
};

constexpr char allRows[] = "select 'MealConsume ' || MealConsumeID from MealConsume"
                           " where Qty = MealConsumeID union all "
                           "select 'ExercisePerform ' || ExercisePerformID from ExercisePerform"
                           " where Qty = ExercisePerformID union all "
                           "select 'Body ' || BodyID from Body where Weight = BodyID union all "
                           "select 'UserNote ' || UserNoteID from UserNote"
                           " where NoteText = UserNoteID";

constexpr char catalogues[] =
    "insert into MealCategory values (1, 'Bread');"
    "insert into Meal values (1, 1, 'Bagel', 'piece', 1, 1, 250, 2, 50, 9, 18, 200, 32);"
    "insert into Exercise values (1, 'Running', 'minute', 1, 1, 1, 0)";

// A journal without an open connection.
QString makeJournal(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(u"Corvana.mdb"_qs);
    makeEmptyJournal(path);
    Connection(path).exec(catalogues);
    return path;
}

QStringList column(const QString &path, const char *sql)
{
    Connection connection(path);
    SQLite::Statement statement(connection.database(), sql);
    QStringList values;
    while (statement.executeStep())
        values += columnValue(statement, 0).toText();
    return values;
}

std::unique_ptr<QProcess> startStoring(const QString &path, int count, int pause)
{
    auto process = std::make_unique<QProcess>();
    process->start(QStringLiteral(CORVANA_STORE_ROWS),
                   {path, QString::number(count), QString::number(pause)});
    if (!process->waitForStarted())
        qFatal("store_rows can't be started");
    return process;
}

} // namespace

class tst_faults : public QObject
{
    Q_OBJECT

private slots:
    void killedWhileStoring();
    void twoProgramsOnOneFile();
    void fullDisk();

private:
    void verifyWhole(const QString &path, const Report &report);
};

void tst_faults::verifyWhole(const QString &path, const Report &report)
{
    QCOMPARE(column(path, "PRAGMA integrity_check"), QStringList{u"ok"_qs});
    QCOMPARE(column(path, "PRAGMA foreign_key_check"), QStringList());
    const QStringList found = column(path, allRows);
    const QSet<QString> rows(found.begin(), found.end());
    QCOMPARE(rows.size(), found.size());
    const QSet<QString> lost = report.stored - rows;
    QVERIFY2(lost.isEmpty(), qPrintable(QStringList(lost.values()).join(u", ")));
}

void tst_faults::killedWhileStoring()
{
    constexpr int kills = 100;
    const QTemporaryDir folder;
    const QString path = makeJournal(folder);
    QRandomGenerator random = QRandomGenerator::securelySeeded();
    Report report;
    int rolledBack = 0; // kills in the middle of a transaction
    for (int kill = 0; kill < kills; ++kill) {
        const auto process = startStoring(path, 32'000, 0);
        QTest::qSleep(random.bounded(250));
        process->kill();
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        rolledBack += QFile::exists(path + u"-journal"_qs) ? 1 : 0;
        report.add(process->readAllStandardOutput());
        verifyWhole(path, report);
        if (QTest::currentTestFailed())
            return;
    }
    qInfo("%lld rows stored, %d of %d kills came in the middle of a transaction",
          qint64(report.stored.size()), rolledBack, kills);
    // The kills must have come while rows were stored, or nothing was tested.
    QVERIFY(report.stored.size() > kills / 4);
    QVERIFY(rolledBack > kills / 10);
}

void tst_faults::twoProgramsOnOneFile()
{
    constexpr int rowsEach = 100;
    constexpr int pause = 25; // no person stores so fast that the other finds no gap
    const QTemporaryDir folder;
    const QString path = makeJournal(folder);
    const auto first = startStoring(path, rowsEach, pause);
    const auto second = startStoring(path, rowsEach, pause);
    Report report;
    for (QProcess *process : {first.get(), second.get()}) {
        QVERIFY(process->waitForFinished(60'000));
        QVERIFY2(process->exitCode() == 0, process->readAllStandardError().constData());
        report.add(process->readAllStandardOutput()); // fails where a number comes twice
    }
    QCOMPARE(report.stored.size(), 2 * rowsEach);
    verifyWhole(path, report);
    QCOMPARE(column(path, allRows).size(), 2 * rowsEach);
    // No number was skipped either: each counter was 1 before.
    QCOMPARE(column(path, "select NextMealConsumeID from Common where NextMealConsumeID ="
                          " NextBodyID and NextBodyID = NextUserNoteID and NextUserNoteID ="
                          " NextExercisePerformID"),
             QStringList{QString::number(1 + rowsEach / 2)});
}

// The engine's limit of pages stands in for the end of the disk.
void tst_faults::fullDisk()
{
    TestJournal journal;
    journal.exec(catalogues);
    const QString pages = journal.row("PRAGMA page_count");
    journal.exec(("PRAGMA max_page_count = " + pages.toStdString()).c_str());

    Recordset &rows = journal.data->rsMealConsume;
    bool full = false;
    while (!full) {
        rows.reopen({0});
        rows.addNew();
        rows.set("MealConsumeID"_L1, Value(int(NewMealConsumeID(*journal.data))));
        rows.set("MealID"_L1, Value(1));
        rows.set("ConsumeDate"_L1, Value(46225));
        rows.set("ConsumeTime"_L1, Value(0.5));
        rows.set("Qty"_L1, Value(1.25));
        try {
            rows.update();
        } catch (const StoreError &error) {
            QCOMPARE(error.kind(), StoreError::Kind::Full);
            full = true;
        }
        QVERIFY(journal.data->rsCommon.integer("NextMealConsumeID"_L1) < 2000);
    }
    rows.cancelUpdate();
    const QString before = journal.row("select count(*), sum(MealConsumeID) from MealConsume");

    // A person is told, keeps what was typed, and can store it once there is room again.
    RecordedMessages messages;
    frmMealConsume editor(*journal.session, messages);
    editor.setAddMode(true);
    inDialog(
        "frmMealConsume", [&] { editor.run(0); },
        [&](QWidget &dialog) {
            auto &quantity = control<QLineEdit>(dialog, "txtQty");
            auto &add = control<QPushButton>(dialog, "btnOK");
            control<DataCombo>(dialog, "dcbMealCategory").setBoundValue(1);
            typeInto(quantity, u"2.75"_qs);
            QTest::mouseClick(&add, Qt::LeftButton);
            QCOMPARE(messages.takeText(), u"Can't store this record in database. Please check "
                                          "whether all data are valid"_qs);
            QVERIFY(dialog.isVisible());
            QCOMPARE(quantity.text(), u"2.75"_qs);
            QCOMPARE(journal.row("select count(*), sum(MealConsumeID) from MealConsume"), before);
            QCOMPARE(journal.row("PRAGMA integrity_check"), u"ok"_qs);

            journal.exec("PRAGMA max_page_count = 100000");
            QTest::mouseClick(&add, Qt::LeftButton);
            QVERIFY(messages.said.empty());
        });
    QCOMPARE(journal.row("select count(*) from MealConsume where Qty = 2.75"), u"1"_qs);
    QVERIFY(editor.storedId() > before.section(u'|', 0, 0).toInt());
}

QTEST_MAIN(tst_faults)
#include "tst_faults.moc"
