// Calories of an activity for bodies of different weight.
#include "catalogue/weightadjustment.h"

#include "data/numbers.h"
#include "settings/units.h"

#include <QTest>

class tst_weightadjustment : public QObject
{
    Q_OBJECT

private slots:
    void adjusts_data();
    void adjusts();
    void refusesWhatHasNoResult();
    void baseIsForTheReferenceBody();
    void factorTurnsTheBaseBack();
};

void tst_weightadjustment::adjusts_data()
{
    QTest::addColumn<double>("calories");
    QTest::addColumn<double>("forWeight");
    QTest::addColumn<int>("userWeight");
    QTest::addColumn<int>("adjusted");

    QTest::newRow("a published table") << 450.0 << 68.04 << 90 << 595;
    QTest::newRow("own weight") << 300.4 << 90.0 << 90 << 300;
    QTest::newRow("half to the even below") << 250.5 << 70.0 << 70 << 250;
    QTest::newRow("half to the even above") << 251.5 << 70.0 << 70 << 252;
    QTest::newRow("negative half") << -250.5 << 70.0 << 70 << -250;
    QTest::newRow("largest") << 32767.5 - 1e-6 << 70.0 << 70 << 32767;
    QTest::newRow("smallest") << -32768.5 << 70.0 << 70 << -32768;
}

void tst_weightadjustment::adjusts()
{
    QFETCH(double, calories);
    QFETCH(double, forWeight);
    QFETCH(int, userWeight);
    QTEST(int(adjustedCalories(calories, forWeight, qint16(userWeight))), "adjusted");
}

void tst_weightadjustment::refusesWhatHasNoResult()
{
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(450, 0, 90));
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(0, 0, 90)); // not even a number
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(32767.5, 70, 70));
    QVERIFY_THROWS_EXCEPTION(OverflowError, adjustedCalories(-32769, 70, 70));
    QVERIFY_THROWS_EXCEPTION(OverflowError, baseCalories(300, 0, true));
    QVERIFY_THROWS_EXCEPTION(OverflowError, baseCalories(0, 0, false));
}

void tst_weightadjustment::baseIsForTheReferenceBody()
{
    QCOMPARE(baseCalories(300, 90, true), 226.8);
    QCOMPARE(baseCalories(300, 200, false), 225.0);
    QCOMPARE(baseCalories(300, 150, false), 300.0);
}

void tst_weightadjustment::factorTurnsTheBaseBack()
{
    for (const bool metric : {true, false}) {
        for (int weight = 30; weight <= 400; ++weight) {
            const double base = baseCalories(7.7654, qint16(weight), metric);
            const double back = base * double(units::weightFactor(qint16(weight), metric));
            QVERIFY2(qAbs(back - 7.7654) < 0.00005, qPrintable(QString::number(weight)));
        }
    }
}

QTEST_APPLESS_MAIN(tst_weightadjustment)
#include "tst_weightadjustment.moc"
