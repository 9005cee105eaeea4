// The sample journal's journey in time, and what outlives the database.
#include "session/installation.h"
#include "session/samplejournal.h"
#include "testjournal.h"

#include <QTest>

class tst_session : public QObject
{
    Q_OBJECT

private slots:
    // By how many days the steps move a measurement, and with it one of the user's own; the rows of
    // the other tables stay.
    void movesTheSampleJournal()
    {
        const std::pair<int, const char *> moves[] = {{0, "-50|50"},
                                                      {365, "315|50"},
                                                      {-5, "-50|45"}, // the clock was set back
                                                      {32767, "32717|50"}};
        for (const auto &[days, steps] : moves) {
            TestJournal journal;
            fill(journal);
            journal.exec(
                "create temp table Steps (days);"
                "create temp trigger Log after update on Body when new.BodyID = -1"
                " begin insert into Steps values (new.DateMeasured - old.DateMeasured); end");
            moveSampleJournal(*journal.data, dateOfDayNumber(46000 + days));
            QCOMPARE(journal.rows("select days from Steps").join(u'|'), steps);
            const QString moved = u"%1|%1|%1|%2|%1|%3\n%4|1|1|1|2|%3"_qs;
            QCOMPARE(
                journal.row("select DateMeasured - 46000, ConsumeDate - 46000,"
                            " PerformDate - 46000, DateFrom - 46000, DateTo - 46000,"
                            " installDate - 46000 from Body join MealConsume on"
                            " MealConsumeID = BodyID join ExercisePerform on ExercisePerformID ="
                            " BodyID join UserNote on UserNoteID = BodyID, Common order by BodyID"),
                moved.arg(days - 10).arg(days - 20).arg(days).arg(days + 1));
        }
        TestJournal journal;
        for (const int days : {32768, -32769, 100'000})
            QVERIFY_THROWS_EXCEPTION(
                OverflowError, moveSampleJournal(*journal.data, dateOfDayNumber(46023 + days)));
    }

    void deletesTheSampleJournal()
    {
        TestJournal journal;
        fill(journal);
        deleteSampleJournal(*journal.data);
        QVERIFY(!hasSampleJournal(*journal.data));
        QCOMPARE(journal.row("select BodyID, MealConsumeID, ExercisePerformID, UserNoteID"
                             " from Body, MealConsume, ExercisePerform, UserNote"),
                 u"1|1|1|1"_qs);
        for (const char *table : {"Body", "MealConsume", "ExercisePerform", "UserNote"}) {
            const QByteArray update = QByteArray("update ") + table + " set rowid = ";
            journal.exec(update + "-1");
            QVERIFY2(hasSampleJournal(*journal.data), table);
            journal.exec(update + "1");
        }
    }

    void firstStartIsRemembered()
    {
        const QTemporaryDir folder;
        const QString path = folder.filePath(u"Corvana.ini"_qs);
        Installation installation(folder.path());
        using enum Installation::FirstStart;
        const std::pair<QByteArray, Installation::FirstStart> contents[] = {
            {"[General]\nFirstStartDone=true\n", Done},
            {"; old\r\nFirstStartDone=true\r\n", Done},
            {"", Untold},
            {"[General]\nFirstStartDone=t", Untold},
            {QByteArray(5000, '\xff'), Untold}};
        installation.setValue(u"Windows/frmMain"_qs, u"1"_qs);
        QCOMPARE(installation.firstStart(), Pending);
        for (const auto &[bytes, told] : contents) {
            setFileBytes(path, bytes);
            QCOMPARE(installation.firstStart(), told);
            // A value kept beside the mark leaves it as it was taken.
            const QString place = u" 1,2;50%=\r\nü "_qs;
            installation.setValue(u"Windows/frmMain"_qs, place);
            installation.setValue(u"Windows/frmMeals"_qs, u"3"_qs);
            QCOMPARE(installation.value(u"Windows/frmMain"_qs), place);
            QCOMPARE(installation.firstStart(), Done);
        }
        QVERIFY(QFile::remove(path));
        installation.setFirstStartDone();
        QCOMPARE(installation.firstStart(), Done);
        // Neither read nor written: known as damaged, and raised where it has to be written.
        QVERIFY(QFile::remove(path) && QDir(folder.path()).mkdir(u"Corvana.ini"_qs));
        installation.setValue(u"Windows/frmMain"_qs, u"1"_qs);
        QCOMPARE(installation.firstStart(), Untold);
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, installation.requireWritable());
        QVERIFY_THROWS_EXCEPTION(std::runtime_error, installation.setFirstStartDone());
    }

private:
    // A sample row and the user's own in each table of the journal, installed on day 46000.
    static void fill(TestJournal &journal)
    {
        journal.exec(
            "PRAGMA foreign_keys = OFF; begin; update Common set installDate = 46000;"
            "insert into Body values (-1, 45990, 1, 1, 1, 1, 'M'), (1, 46001, 1, 1, 1, 1, 'M');"
            "insert into MealConsume values (-1, 1, 45990, 0, 1), (1, 1, 46001, 0, 1);"
            "insert into ExercisePerform values (-1, 1, 45990, 0, 1, 1), (1, 1, 46001, 0, 1, 1);"
            "insert into UserNote values (-1, 45980, 45990, 'a'), (1, 46001, 46002, 'b');"
            "commit");
        journal.data->rsCommon.close();
    }
};

QTEST_GUILESS_MAIN(tst_session)
#include "tst_session.moc"
