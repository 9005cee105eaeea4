// The figures of meals eaten and activities done. Their asymmetries are deliberate: users compare
// with what they stored years ago.
#include "journal/consumptionfigures.h"
#include "journal/daytotals.h"
#include "journal/performancefigures.h"
#include "journal/quantitysteps.h"

#include <QTest>

namespace {

Currency decimal(const char *text)
{
    return *Currency::fromText(QString::fromLatin1(text));
}

} // namespace

class tst_entryfigures : public QObject
{
    Q_OBJECT

private slots:
    void calories();
    void steps();
    void totals();
};

void tst_entryfigures::calories()
{
    // Each part of a meal is rounded half to even before they are added: 2.5, 3.75, 1.25.
    const auto quarter = consumptionFigures(decimal("0.25"), {10.0, 15.0, 5.0});
    QVERIFY((quarter == Nutrients<qint64>{2, 4, 1}));
    QCOMPARE(quarter.sum(), 7);
    QCOMPARE(consumptionFigures(decimal("-1"), {3.5, 2.5, 1.0}).sum(), -7);
    QVERIFY_THROWS_EXCEPTION(OverflowError,
                             consumptionFigures(decimal("1000000000"), {9.0, 1.0, 1.0}));
    // Those of an activity are cut off downwards.
    QCOMPARE(performanceFigure(decimal("2.5"), decimal("7")), 17);
    QCOMPARE(performanceFigure(decimal("-2.5"), decimal("7")), -18);
    QCOMPARE(performanceFigure(decimal("0.57"), decimal("100")), 57); // in binary, 56.99999999
    QCOMPARE(performanceFigure(decimal("100"), decimal("-1.15")), -115);
    QCOMPARE(performanceFigure(decimal("0.3333"), decimal("3.0003")), 0);
    QVERIFY_THROWS_EXCEPTION(OverflowError, performanceFigure(decimal("5000000"), decimal("500")));
}

void tst_entryfigures::steps()
{
    QCOMPARE(mealStepUp(decimal("16777216.0001"), decimal("1")), decimal("16777217.0001"));
    // Down loses what single precision can't hold, on the way in and on the way out.
    // Compared exactly: QCOMPARE takes floats this near to each other for the same.
    QVERIFY(mealStepDown(0.0F, decimal("0.25")) == -0.25F);
    QVERIFY(mealStepDown(16777217.0F, decimal("1")) == 16777215.0F);
    QVERIFY(mealStepDown(16777220.0F, decimal("0.5")) == 16777220.0F);
    QVERIFY(activityStepUp(1.5F) == 2.5F && activityStepDown(1.5F) == 0.5F);
    QVERIFY(activityStepUp(16777216.0F) == 16777216.0F);
    QVERIFY(activityStepDown(33554432.0F) == 33554432.0F);
}

void tst_entryfigures::totals()
{
    DayTotals day(2);
    day.addRow({2, 7});
    QVERIFY(!day.areShown());
    day.addRow({3e9, -2});
    day.addRow({-3e9, 1});
    QVERIFY(day.areShown());
    QCOMPARE(day.totals().at(0), std::nullopt);
    QCOMPARE(day.totals().at(1), 6);
}

QTEST_GUILESS_MAIN(tst_entryfigures)
#include "tst_entryfigures.moc"
