// Counters: no number is handed out twice, whatever becomes of the row that it was for.
#include "data/identifiers.h"
#include "testjournal.h"

#include <QTest>

class tst_identifiers : public QObject
{
    Q_OBJECT

private slots:
    void eachCountsItsOwn()
    {
        TestJournal journal;
        journal.exec("update Common set NextMealConsumeID = 10, NextExercisePerformID = 20,"
                     " NextBodyID = 30, NextUserNoteID = 0");
        // A counter that holds k hands out k + 1.
        QCOMPARE(NewMealConsumeID(*journal.data), qint16(11));
        QCOMPARE(NewExercisePerformID(*journal.data), qint16(21));
        QCOMPARE(NewBodyID(*journal.data), qint16(31));
        QCOMPARE(NewUserNoteID(*journal.data), qint16(1));
        QCOMPARE(journal.row("select NextMealConsumeID, NextExercisePerformID, NextBodyID,"
                             " NextUserNoteID from Common"),
                 u"11|21|31|1"_qs);
    }

    void endsAt16Bits()
    {
        TestJournal journal;
        journal.exec("update Common set NextMealConsumeID = 32766, NextBodyID = 2147483647");
        QCOMPARE(NewMealConsumeID(*journal.data), qint16(32767));
        for (const auto &counters : {u"32768|2147483647"_qs, u"32769|2147483647"_qs}) {
            QVERIFY_THROWS_EXCEPTION(OverflowError, NewMealConsumeID(*journal.data));
            QVERIFY_THROWS_EXCEPTION(OverflowError, NewBodyID(*journal.data));
            QCOMPARE(journal.row("select NextMealConsumeID, NextBodyID from Common"), counters);
        }
        QCOMPARE(NewUserNoteID(*journal.data), qint16(2)); // no transaction was left open
    }

    void twoProgramsShareTheCounter()
    {
        TestJournal journal;
        deData other(journal.path());
        // Both have read the row before.
        other.rsCommon.open();
        journal.data->rsCommon.reopen();
        for (int i = 0; i < 20; ++i)
            QCOMPARE(NewMealConsumeID(i % 3 == 0 ? other : *journal.data), qint16(2 + i));
        other.Con.exec("begin immediate");
        QVERIFY_THROWS_EXCEPTION(StoreError, NewMealConsumeID(*journal.data));
        other.Con.exec("rollback");
        QCOMPARE(NewMealConsumeID(*journal.data), qint16(22));
    }
};

QTEST_APPLESS_MAIN(tst_identifiers)
#include "tst_identifiers.moc"
