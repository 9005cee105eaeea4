// What every window reads, the sample journal's journey in time, and what outlives the database.
#include "session/installation.h"
#include "session/samplejournal.h"
#include "testjournal.h"

#include <QDir>
#include <QSignalSpy>
#include <QTest>

using namespace Qt::Literals;

class tst_session : public QObject
{
    Q_OBJECT

private slots:
    void takesTodayFromTheClock();
    void readsCommonParameters();
    void weightBeyond16BitsIsRaised();
    void clockFormats();
    void announcesChanges();

    void movesTheSampleJournal_data();
    void movesTheSampleJournal();
    void tooManyDaysAreRaised();
    void deletesTheSampleJournal();

    void firstStartOutlivesTheDatabase();
    void foldersMayEndInASlash();
};

void tst_session::takesTodayFromTheClock()
{
    TestJournal journal;
    journal.clock.setNow(QDateTime(QDate(2026, 12, 31), QTime(23, 15, 59)));
    Session session(*journal.data, journal.clock, QLocale(QLocale::German));
    QCOMPARE(session.currentDate(), QDate(2026, 12, 31));
    QCOMPARE(session.currentTime(), QTime(23, 15));
    session.setCurrentTime(QTime(8, 30, 30));
    QCOMPARE(session.currentTime(), QTime(8, 30));
    session.setCurrentDate(QDate()); // no date at all is not taken
    QCOMPARE(session.currentDate(), QDate(2026, 12, 31));
}

void tst_session::readsCommonParameters()
{
    TestJournal journal;
    journal.exec("update Common set weight = 152.5, metabolicRate = 61.25, Measurement = 'I'");
    journal.data->rsCommon.close();
    journal.session->readCommonParameters();
    QCOMPARE(journal.session->parameters().weight, qint16(152)); // half to even
    QCOMPARE(journal.session->parameters().metabolicRate, 61.25);
    QVERIFY(!journal.session->parameters().isMetric());
}

void tst_session::weightBeyond16BitsIsRaised()
{
    TestJournal journal;
    journal.exec("update Common set weight = 40000, metabolicRate = 1");
    journal.data->rsCommon.close();
    QVERIFY_THROWS_EXCEPTION(OverflowError, journal.session->readCommonParameters());
    QCOMPARE(journal.session->parameters().weight, qint16(70));
    QCOMPARE(journal.session->parameters().metabolicRate, 59.0);
}

void tst_session::clockFormats()
{
    TestJournal british(QLocale(u"en_GB"_qs));
    QVERIFY(british.session->is24HourClock());
    QCOMPARE(british.session->listTimeFormat(), u"Hh:Nn"_qs);
    QCOMPARE(british.session->pickerTimeFormat(), u"H:mm"_qs);
    TestJournal american(QLocale(u"en_US"_qs));
    QVERIFY(!american.session->is24HourClock());
    QCOMPARE(american.session->listTimeFormat(), u"h:Nn am/pm"_qs);
    QCOMPARE(american.session->pickerTimeFormat(), u"h:mm tt"_qs);
}

void tst_session::announcesChanges()
{
    TestJournal journal;
    QSignalSpy days(journal.session.get(), &Session::dayChanged);
    QSignalSpy changes(journal.session.get(), &Session::journalChanged);
    journal.session->setCurrentDate(QDate(2026, 7, 23));
    journal.session->setCurrentDate(QDate(2026, 7, 23)); // the same day is no change
    QCOMPARE(days.size(), 1);
    journal.session->announceJournalChange();
    QCOMPARE(changes.size(), 1);
}

void tst_session::movesTheSampleJournal_data()
{
    QTest::addColumn<int>("days");      // from installDate to today
    QTest::addColumn<QString>("steps"); // of a body row
    QTest::newRow("on the day") << 0 << u"-50 50"_qs;
    QTest::newRow("ten days later") << 10 << u"-40 50"_qs;
    QTest::newRow("fifty days later") << 50 << u"0 50"_qs;
    QTest::newRow("a year later") << 365 << u"315 50"_qs;
    QTest::newRow("clock set back") << -5 << u"-50 45"_qs;
    QTest::newRow("the longest way") << 32767 << u"32717 50"_qs;
}

void tst_session::movesTheSampleJournal()
{
    QFETCH(int, days);
    TestJournal journal;
    journal.exec(
        "update Common set installDate = 46000;"
        "insert into Exercise values (1, 'a', 'b', 1, 1, 1, 0);"
        "insert into MealCategory values (1, 'a');"
        "insert into Meal values (1, 1, 'a', 'b', 1, 1, 1, 1, 1, 1, 1, 1, 1);"
        "insert into Body values (-1, 45990, 1, 1, 1, 1, 'M'), (1, 46001, 1, 1, 1, 1, 'M');"
        "insert into MealConsume values (-1, 1, 45990, 0, 1), (1, 1, 46001, 0, 1);"
        "insert into ExercisePerform values (-1, 1, 45990, 0, 1, 1), (1, 1, 46001, 0, 1, 1);"
        "insert into UserNote values (-1, 45980, 45990, 'a'), (1, 46001, 46002, 'b');"
        "create temp table Steps (days);"
        "create temp trigger Log after update on Body when new.BodyID = -1"
        " begin insert into Steps values (new.DateMeasured - old.DateMeasured); end");
    journal.data->rsCommon.close();
    moveSampleJournal(*journal.data, dateOfDayNumber(46000 + days));

    const auto moved = [&](const char *sql) {
        QStringList result;
        for (const QString &day : journal.row(sql).split(u'|'))
            result += QString::number(day.toInt() - 46000);
        return result.join(u' ');
    };
    const auto expected = [&](std::initializer_list<int> daysAfter) {
        QStringList result;
        for (const int day : daysAfter)
            result += QString::number(day);
        return result.join(u' ');
    };
    QTEST(journal.rows("select days from Steps").join(u' '), "steps");
    // A user's own measurement is moved too; the rows of the other tables stay.
    QCOMPARE(moved("select (select DateMeasured from Body where BodyID = -1), DateMeasured"
                   " from Body where BodyID = 1"),
             expected({days - 10, days + 1}));
    QCOMPARE(moved("select (select ConsumeDate from MealConsume where MealConsumeID = -1),"
                   " ConsumeDate from MealConsume where MealConsumeID = 1"),
             expected({days - 10, 1}));
    QCOMPARE(moved("select (select PerformDate from ExercisePerform where ExercisePerformID = -1),"
                   " PerformDate from ExercisePerform where ExercisePerformID = 1"),
             expected({days - 10, 1}));
    QCOMPARE(moved("select a.DateFrom, a.DateTo, b.DateFrom, b.DateTo from UserNote a, UserNote b"
                   " where a.UserNoteID = -1 and b.UserNoteID = 1"),
             expected({days - 20, days - 10, 1, 2}));
    QCOMPARE(moved("select installDate from Common"), expected({days}));
}

void tst_session::tooManyDaysAreRaised()
{
    TestJournal journal;
    journal.exec("insert into Body values (-1, 46000, 1, 1, 1, 1, 'M')");
    const QString before = journal.row("select DateMeasured, installDate from Body, Common");
    for (const int days : {32768, -32769, 100'000})
        QVERIFY_THROWS_EXCEPTION(OverflowError,
                                 moveSampleJournal(*journal.data, QDate(2026, 1, 1).addDays(days)));
    QCOMPARE(journal.row("select DateMeasured, installDate from Body, Common"), before);
}

void tst_session::deletesTheSampleJournal()
{
    TestJournal journal;
    journal.exec("insert into Body select value, 1, 1, 1, 1, 1, 'M' from"
                 " (select -2 as value union select -1 union select 0 union select 1);"
                 "insert into UserNote values (-32768, 1, 1, 'a'), (32767, 2, 2, 'b')");
    for (int round = 0; round < 2; ++round) {
        deleteSampleJournal(*journal.data);
        QCOMPARE(journal.row("select group_concat(BodyID) from Body"), u"0,1"_qs);
        QCOMPARE(journal.row("select group_concat(UserNoteID) from UserNote"), u"32767"_qs);
    }
}

void tst_session::firstStartOutlivesTheDatabase()
{
    TestJournal journal;
    Installation installation(journal.folder.path());
    QCOMPARE(installation.databasePath(), journal.path());
    QVERIFY(!installation.isFirstStartDone());
    installation.setFirstStartDone();
    journal.data.reset();
    QVERIFY(QFile::remove(journal.path()));
    makeEmptyJournal(journal.path());
    QVERIFY(Installation(journal.folder.path()).isFirstStartDone());
    // Another installation has a first start of its own.
    QTemporaryDir other;
    QVERIFY(!Installation(other.path()).isFirstStartDone());
    // Where there can be no file, it is raised, not lost: here the folder is a file.
    QVERIFY_THROWS_EXCEPTION(std::runtime_error, Installation(journal.path()).setFirstStartDone());
}

void tst_session::foldersMayEndInASlash()
{
    QCOMPARE(Installation(u"/"_qs).databasePath(), u"/Corvana.mdb"_qs);
    QCOMPARE(Installation(u"/opt/corvana/"_qs).databasePath(), u"/opt/corvana/Corvana.mdb"_qs);
    QCOMPARE(Installation(u"/opt/corvana"_qs).helpPath(), u"/opt/corvana/Corvana.hlp"_qs);
}

QTEST_GUILESS_MAIN(tst_session)
#include "tst_session.moc"
