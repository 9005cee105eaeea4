// What a journal must outlive: a second program, and both of them killed. Run with a database, this
// is itself the program that stores, or takes back what it stored, and is killed.
#include "data/identifiers.h"
#include "data/undohistory.h"
#include "testjournal.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QSet>
#include <QTest>

using namespace Qt::Literals;

namespace {

// Stores notes as the editor does and reports each identifier on standard output once its row is
// stored. A row tells its identifier a second time, so that a half-written one would show.
void storeNotes(const QString &path)
{
    deData data(path);
    Recordset &rows = data.rsUserNote;
    for (;;) {
        rows.reopen({0});
        rows.addNew();
        const int id = NewUserNoteID(data);
        rows.set(schema::UserNote::UserNoteID, id);
        rows.set(schema::UserNote::DateFrom, 46000);
        rows.set(schema::UserNote::DateTo, 46000);
        rows.set(schema::UserNote::NoteText, QString::number(id));
        rows.update(); // raises where the other program was given the same number
        std::printf("%d\n", id);
        std::fflush(stdout);
        QTest::qSleep(15); // a gap for the other
    }
}

// Stores notes in pairs, takes each pair back, stores it again, and then reports its first. Both
// tell the identifier of the first.
void storeAndUndoNotes(const QString &path)
{
    deData data(path);
    UndoHistory history(data.Con);
    for (;;) {
        const int first = NewUserNoteID(data);
        const int second = NewUserNoteID(data);
        {
            const UndoHistory::Recording recording(history, QString(), QDate());
            WriteTransaction transaction(data.Con);
            for (const int id : {first, second})
                data.Con.write("insert into UserNote values (?, 46001, 46001, ?)",
                               {Value(id), Value(QString::number(first))});
            transaction.commit();
        }
        history.take(Direction::Backward);
        history.take(Direction::Forward);
        std::printf("%d\n", first);
        std::fflush(stdout);
        QTest::qSleep(15);
    }
}

} // namespace

class tst_faults : public QObject
{
    Q_OBJECT

private slots:
    void twoProgramsKilledWhileStoring();
};

void tst_faults::twoProgramsKilledWhileStoring()
{
    constexpr int kills = 100;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"Corvana.mdb"_qs);
    makeEmptyJournal(path);
    QSet<QString> stored;
    int rolledBack = 0; // kills in the middle of a transaction
    int shared = 0;     // kills after each of the two had stored
    for (int kill = 0; kill < kills && !QTest::currentTestFailed(); ++kill) {
        QProcess programs[2];
        programs[0].start(QCoreApplication::applicationFilePath(), {path});
        programs[1].start(QCoreApplication::applicationFilePath(), {path, u"undo"_qs});
        for (QProcess &program : programs)
            QVERIFY(program.waitForStarted());
        // Every other time once both store, else perhaps while they open the file.
        for (QProcess &program : programs)
            QVERIFY(kill % 2 == 0 || program.waitForReadyRead(20'000));
        QTest::qSleep(QRandomGenerator::global()->bounded(250));
        bool haveBothStored = true;
        for (QProcess &program : programs) {
            program.kill();
            QVERIFY(program.waitForFinished());
            QCOMPARE(program.readAllStandardError(), QByteArray()); // none was refused
        }
        rolledBack += QFile::exists(path + u"-journal"_qs) ? 1 : 0;
        for (QProcess &program : programs) {
            QByteArray output = program.readAllStandardOutput();
            output.truncate(output.lastIndexOf('\n') + 1); // the last line may be cut
            const QStringList ids =
                QString::fromLatin1(output.simplified()).split(u' ', Qt::SkipEmptyParts);
            stored.unite(QSet<QString>(ids.begin(), ids.end()));
            haveBothStored = haveBothStored && !ids.isEmpty();
        }
        shared += haveBothStored ? 1 : 0;
        // The file is sound, and no row is missing or half written.
        Connection connection(path);
        QCOMPARE(queryRows(connection, "PRAGMA integrity_check"), QStringList{u"ok"_qs});
        const QStringList rows =
            queryRows(connection, "select UserNoteID from UserNote where NoteText = UserNoteID");
        QVERIFY(QSet<QString>(rows.begin(), rows.end()).contains(stored));
        QCOMPARE(queryRows(connection, "select NoteText from UserNote where DateFrom = 46001"
                                       " group by NoteText having count(*) <> 2"),
                 QStringList());
    }
    qInfo("%lld rows stored, %d of %d kills came in the middle of a transaction, %d while both"
          " stored",
          qint64(stored.size()), rolledBack, kills, shared);
    // The kills must have come while rows were stored, or nothing was tested.
    QVERIFY(stored.size() > kills / 4);
    QVERIFY(rolledBack > kills / 10);
    QVERIFY(shared > kills / 10);
}

int main(int argc, char **argv)
{
    if (argc >= 2 && QFile::exists(QString::fromLocal8Bit(argv[1]))) {
        const auto store = argc == 2 ? storeNotes : storeAndUndoNotes;
        store(QString::fromLocal8Bit(argv[1]));
        return 0;
    }
    QCoreApplication application(argc, argv);
    tst_faults test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_faults.moc"
