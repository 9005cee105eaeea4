// The figures of meals eaten and activities done. Their asymmetries are deliberate: users compare
// with what they stored years ago.
#include "journal/consumptionfigures.h"
#include "journal/daytotals.h"
#include "journal/performancefigures.h"
#include "journal/quantitysteps.h"

#include <QTest>

class tst_EntryFigures : public QObject
{
    Q_OBJECT

private slots:
    void mealCalories();
    void activityCalories_data();
    void activityCalories();
    void mealSteps();
    void activitySteps();
    void totals();

private:
    static Currency decimal(const char *text)
    {
        return *Currency::fromText(QString::fromLatin1(text));
    }
};

void tst_EntryFigures::mealCalories()
{
    // Each part rounded half to even before they are added: 2.5, 3.75, 1.25.
    const ConsumptionFigures quarter = consumptionFigures(decimal("0.25"), 10, 15, 5);
    QCOMPARE(quarter.fat, 2);
    QCOMPARE(quarter.carbohydrate, 4);
    QCOMPARE(quarter.protein, 1);
    QCOMPARE(quarter.total(), 7);
    // The rounded sum of 3 × 0.4 would be 1.
    QCOMPARE(consumptionFigures(decimal("1"), 0.4, 0.4, 0.4).total(), 0);
    QCOMPARE(consumptionFigures(decimal("-1"), 3.5, 2.5, 1).total(), -7);
    QVERIFY_THROWS_EXCEPTION(OverflowError, consumptionFigures(decimal("1000000000"), 9, 1, 1));
}

void tst_EntryFigures::activityCalories_data()
{
    QTest::addColumn<QString>("quantity");
    QTest::addColumn<double>("perUnit");
    QTest::addColumn<int>("figure");
    QTest::newRow("half is cut off, not rounded") << "2.5" << 7.0 << 17;
    QTest::newRow("nearly the next") << "1" << 9.9999 << 9;
    QTest::newRow("whole") << "30" << 3.5 << 105;
    QTest::newRow("down, not towards zero") << "-2.5" << 7.0 << -18;
    QTest::newRow("nothing") << "0" << 7.0 << 0;
}

void tst_EntryFigures::activityCalories()
{
    QFETCH(QString, quantity);
    QFETCH(double, perUnit);
    QTEST(performanceFigure(*Currency::fromText(quantity), perUnit), "figure");
}

void tst_EntryFigures::mealSteps()
{
    QCOMPARE(mealStepUp(decimal("1"), decimal("0.25")), decimal("1.25"));
    QCOMPARE(mealStepUp(decimal("16777216.0001"), decimal("1")), decimal("16777217.0001"));
    QCOMPARE(mealStepDown(1.25F, decimal("0.25")), 1.0F);
    QCOMPARE(mealStepDown(0.0F, decimal("0.25")), -0.25F);
    // Down loses what single precision can't hold, on the way in and on the way out.
    QCOMPARE(mealStepDown(16777217.0F, decimal("1")), 16777215.0F);
    QCOMPARE(mealStepDown(16777220.0F, decimal("0.5")), 16777220.0F);
}

void tst_EntryFigures::activitySteps()
{
    QCOMPARE(activityStepUp(2.5F), 3.5F);
    QCOMPARE(activityStepDown(0.0F), -1.0F);
    QCOMPARE(activityStepUp(0.1F), 1.1F);
    QCOMPARE(activityStepUp(16777216.0F), 16777216.0F);
    QCOMPARE(activityStepDown(33554432.0F), 33554432.0F);
}

void tst_EntryFigures::totals()
{
    DayTotals day(2);
    day.addRow({2, 7});
    QVERIFY(!day.areShown());
    day.addRow({2, -3});
    QVERIFY(day.areShown());
    QCOMPARE(day.count(), 2);
    QCOMPARE(day.totals().at(0), 4);
    QCOMPARE(day.totals().at(1), 4);
    day.addRow({3e9, 1});
    day.addRow({-3e9, 1});
    QCOMPARE(day.totals().at(0), std::nullopt);
    QCOMPARE(day.totals().at(1), 6);
}

QTEST_GUILESS_MAIN(tst_EntryFigures)
#include "tst_entryfigures.moc"
