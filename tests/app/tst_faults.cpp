// What a journal must outlive: a killed program, a second program, a full disk. Run with a
// database, a number of rows and a pause, this is itself the program that stores and is killed.
#include "data/identifiers.h"
#include "guitest.h"
#include "journal/frmMealConsume.h"
#include "testjournal.h"
#include "ui/datacombo.h"

#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QRandomGenerator>
#include <QSet>

using namespace Qt::Literals;

namespace {

// Stores notes as the editor does and reports on standard output each identifier as it is taken
// ("taken 7") and once its row is stored ("stored 7"). A row tells its identifier a second time,
// so that a half-written one would show.
void storeNotes(const QString &path, int count, int pause)
{
    deData data(path);
    Recordset &rows = data.rsUserNote;
    for (int number = 0; number < count; ++number) {
        rows.reopen({0});
        rows.addNew();
        const int id = NewUserNoteID(data);
        std::printf("taken %d\n", id);
        std::fflush(stdout);
        rows.set("UserNoteID"_L1, id);
        rows.set("DateFrom"_L1, 46000 + number);
        rows.set("DateTo"_L1, 46000 + number);
        rows.set("NoteText"_L1, QString::number(id));
        rows.update();
        std::printf("stored %d\n", id);
        std::fflush(stdout);
        QTest::qSleep(pause);
    }
}

// What the storing programs said that they did.
struct Report
{
    QSet<QString> taken, stored;

    void add(const QByteArray &output)
    {
        // The last line of a killed program may be cut.
        const auto complete = output.left(output.lastIndexOf('\n') + 1);
        for (const QByteArray &line : complete.split('\n')) {
            const QString id = QString::fromLatin1(line.mid(line.indexOf(' ') + 1));
            QVERIFY2(!line.startsWith("taken ") || !taken.contains(id), line.constData());
            if (!line.isEmpty())
                (line.startsWith("taken ") ? taken : stored) += id;
        }
    }
};

std::unique_ptr<QProcess> startStoring(const QString &path, int count, int pause)
{
    auto process = std::make_unique<QProcess>();
    process->start(QCoreApplication::applicationFilePath(),
                   {path, QString::number(count), QString::number(pause)});
    if (!process->waitForStarted())
        qFatal("the program can't be started");
    return process;
}

// The file is sound, and no row is missing, doubled or half written.
void verifyWhole(const QString &path, const Report &report)
{
    Connection connection(path);
    QCOMPARE(queryRows(connection, "PRAGMA integrity_check"), QStringList{u"ok"_qs});
    const QStringList found =
        queryRows(connection, "select UserNoteID from UserNote where NoteText = UserNoteID");
    const QSet<QString> rows(found.begin(), found.end());
    QCOMPARE(rows.size(), found.size());
    const QSet<QString> lost = report.stored - rows;
    QVERIFY2(lost.isEmpty(), qPrintable(QStringList(lost.values()).join(u", ")));
}

} // namespace

class tst_faults : public QObject
{
    Q_OBJECT

private slots:
    void killedWhileStoring();
    void twoProgramsOnOneFile();
};

void tst_faults::killedWhileStoring()
{
    constexpr int kills = 100;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Corvana.mdb"_qs);
    makeEmptyJournal(path);
    Report report;
    int rolledBack = 0; // kills in the middle of a transaction
    for (int kill = 0; kill < kills && !QTest::currentTestFailed(); ++kill) {
        const auto process = startStoring(path, 32'000, 0);
        QTest::qSleep(QRandomGenerator::global()->bounded(250));
        process->kill();
        QVERIFY(process->waitForFinished());
        QCOMPARE(process->exitStatus(), QProcess::CrashExit);
        rolledBack += QFile::exists(path + u"-journal"_qs) ? 1 : 0;
        report.add(process->readAllStandardOutput());
        verifyWhole(path, report);
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
    const QString path = folder.filePath(u"Corvana.mdb"_qs);
    makeEmptyJournal(path);
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
    // No number was skipped either: the counter was 1 before.
    Connection connection(path);
    QCOMPARE(queryRows(connection, "select NextUserNoteID from Common"),
             QStringList{QString::number(1 + 2 * rowsEach)});
}

int main(int argc, char **argv)
{
    if (argc == 4 && QFile::exists(QString::fromLocal8Bit(argv[1]))) {
        storeNotes(QString::fromLocal8Bit(argv[1]), std::atoi(argv[2]), std::atoi(argv[3]));
        return 0;
    }
    QApplication application(argc, argv);
    tst_faults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
