// Calories of an activity for bodies of different weight.
#include "catalogue/weightadjustment.h"

#include "data/numbers.h"
#include "settings/units.h"

#include <QTest>

class tst_weightadjustment : public QObject
{
    Q_OBJECT

private slots:
    void adjusts();
    void refusesWhatHasNoResult();
    void baseIsForTheReferenceBody();
};

void tst_weightadjustment::adjusts()
{
    QCOMPARE(int(adjustedCalories(450, 68.04, 90)), 595); // as in a published table
    QCOMPARE(int(adjustedCalories(250.5, 70, 70)), 250);  // halves to the even
    QCOMPARE(int(adjustedCalories(251.5, 70, 70)), 252);
    QCOMPARE(int(adjustedCalories(32767.5 - 1e-6, 70, 70)), 32767);
    QCOMPARE(int(adjustedCalories(-32768.5, 70, 70)), -32768);
}

void tst_weightadjustment::refusesWhatHasNoResult()
{
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(0, 0, 90)); // not even a number
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(32767.5, 70, 70));
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(-32769, 70, 70));
    QVERIFY_THROWS_EXCEPTION(OverflowError, baseCalories(0, 0, false));
}

void tst_weightadjustment::baseIsForTheReferenceBody()
{
    QCOMPARE(baseCalories(300, 90, true), 226.8);
    QCOMPARE(baseCalories(300, 200, false), 225.0);
    // The user's factor turns the base back.
    const double back = baseCalories(7.7654, 90, true) * double(units::weightFactor(90, true));
    QVERIFY(qAbs(back - 7.7654) < 0.00005);
}

QTEST_APPLESS_MAIN(tst_weightadjustment)
#include "tst_weightadjustment.moc"
