// Counters: no number is handed out twice, whatever becomes of the row that it was for.
#include "data/identifiers.h"
#include "testjournal.h"

#include <QTest>

using namespace Qt::Literals;

namespace {

using Allocator = qint16 (*)(deData &);

constexpr char stored[] = "select NextMealConsumeID, NextExercisePerformID, NextBodyID,"
                          " NextUserNoteID from Common";

} // namespace

class tst_identifiers : public QObject
{
    Q_OBJECT

private slots:
    void countsUp_data();
    void countsUp();
    void firstOfZero();
    void isStoredBeforeItIsHandedOut();
    void endsAt16Bits();
    void endsAt32Bits();
    void twoProgramsShareTheCounter();
    void leavesOtherPendingRowsAlone();
    void busyFileIsRaised();
};

void tst_identifiers::countsUp_data()
{
    QTest::addColumn<Allocator>("allocate");
    QTest::addColumn<QString>("after");
    QTest::newRow("meals") << Allocator(&NewMealConsumeID) << u"12|20|30|40"_qs;
    QTest::newRow("activities") << Allocator(&NewExercisePerformID) << u"10|22|30|40"_qs;
    QTest::newRow("bodies") << Allocator(&NewBodyID) << u"10|20|32|40"_qs;
    QTest::newRow("notes") << Allocator(&NewUserNoteID) << u"10|20|30|42"_qs;
}

void tst_identifiers::countsUp()
{
    QFETCH(Allocator, allocate);
    TestJournal journal;
    journal.exec("update Common set NextMealConsumeID = 10, NextExercisePerformID = 20,"
                 " NextBodyID = 30, NextUserNoteID = 40");
    const qint16 first = allocate(*journal.data);
    QCOMPARE(first % 10, 1); // a counter that holds k hands out k + 1
    QCOMPARE(allocate(*journal.data), qint16(first + 1));
    QTEST(journal.row(stored), "after");
}

void tst_identifiers::firstOfZero()
{
    TestJournal journal;
    journal.exec("update Common set NextBodyID = 0");
    QCOMPARE(NewBodyID(*journal.data), qint16(1));
}

void tst_identifiers::isStoredBeforeItIsHandedOut()
{
    TestJournal journal;
    const qint16 lost = NewBodyID(*journal.data);
    // Another program sees it already; an insert that fails does not give it back.
    deData other(journal.path());
    other.rsCommon.open();
    QCOMPARE(other.rsCommon.integer("NextBodyID"_L1), lost);
    QVERIFY_THROWS_EXCEPTION(StoreError, journal.exec("insert into Body (BodyID) values (2)"));
    QCOMPARE(NewBodyID(*journal.data), qint16(lost + 1));
}

void tst_identifiers::endsAt16Bits()
{
    TestJournal journal;
    journal.exec("update Common set NextMealConsumeID = 32766");
    QCOMPARE(NewMealConsumeID(*journal.data), qint16(32767));
    for (const char *counter : {"32768", "32769"}) {
        QVERIFY_THROWS_EXCEPTION(OverflowError, NewMealConsumeID(*journal.data));
        QCOMPARE(journal.row("select NextMealConsumeID from Common"), QLatin1StringView(counter));
    }
    QCOMPARE(NewBodyID(*journal.data), qint16(2)); // the other counters go on
}

void tst_identifiers::endsAt32Bits()
{
    TestJournal journal;
    journal.exec("update Common set NextBodyID = 2147483647");
    QVERIFY_THROWS_EXCEPTION(OverflowError, NewBodyID(*journal.data));
    QCOMPARE(journal.row("select NextBodyID from Common"), u"2147483647"_qs);
    QCOMPARE(NewUserNoteID(*journal.data), qint16(2)); // no transaction was left open
}

void tst_identifiers::twoProgramsShareTheCounter()
{
    TestJournal journal;
    deData other(journal.path());
    // Both have read the row before.
    other.rsCommon.open();
    journal.data->rsCommon.reopen();
    QList<int> handedOut;
    for (int i = 0; i < 20; ++i)
        handedOut << NewMealConsumeID(i % 3 == 0 ? other : *journal.data);
    for (int i = 0; i < 20; ++i)
        QCOMPARE(handedOut[i], 2 + i);
}

// An editor takes its number in the middle of gathering its row.
void tst_identifiers::leavesOtherPendingRowsAlone()
{
    TestJournal journal;
    Recordset &notes = journal.data->rsUserNote;
    notes.open({0});
    notes.addNew();
    notes.set("NoteText"_L1, Value(u"text"_qs));
    notes.set("UserNoteID"_L1, Value(int(NewUserNoteID(*journal.data))));
    notes.set("DateFrom"_L1, Value(1));
    notes.set("DateTo"_L1, Value(1));
    notes.update();
    QCOMPARE(journal.row("select UserNoteID, NoteText from UserNote"), u"2|text"_qs);
}

void tst_identifiers::busyFileIsRaised()
{
    TestJournal journal;
    Connection other(journal.path());
    other.exec("begin immediate");
    QVERIFY_THROWS_EXCEPTION(StoreError, NewBodyID(*journal.data));
    other.exec("rollback");
    QCOMPARE(NewBodyID(*journal.data), qint16(2));
}

QTEST_APPLESS_MAIN(tst_identifiers)
#include "tst_identifiers.moc"
