// The day's totals and its running balance.
#include "chart/daybalance.h"
#include "chart/scales.h"
#include "samples.h"

#include <QTest>

using namespace daychart;

class TestDayBalance : public QObject
{
    Q_OBJECT

private slots:
    void balanceThroughTheDay_data();
    void balanceThroughTheDay();
    void totalsAddUp();
    void curveRunsFromMidnightToMidnight_data();
    void curveRunsFromMidnightToMidnight();
    void largeCaloriesDoNotOverflow();
    void impossibleTimesLastOneMinute();
    void roundSteps();
    void outlierIsLimited();
};

void TestDayBalance::balanceThroughTheDay_data()
{
    QTest::addColumn<double>("minute");
    QTest::addColumn<double>("expected");
    // 1.25 a minute all day; 430 at 7:30, 4 a minute more from 8:00 to 8:30, 780 at 12:45.
    QTest::newRow("midnight") << 0.0 << 0.0;
    QTest::newRow("before breakfast") << 449.0 << -561.25;
    QTest::newRow("breakfast counts at its minute") << 450.0 << 430 - 562.5;
    QTest::newRow("activity half over") << 495.0 << 430 - 618.75 - 60;
    QTest::newRow("activity over") << 510.0 << 430 - 637.5 - 120;
    QTest::newRow("lunch") << 765.0 << 1210 - 956.25 - 120;
    QTest::newRow("end of the day") << 1440.0 << 1960.0 - 1800 - 600;
}

void TestDayBalance::balanceThroughTheDay()
{
    QFETCH(double, minute);
    QFETCH(double, expected);
    QCOMPARE(balanceAt(balanceCurve(samples::typicalDay()), minute), expected);
}

void TestDayBalance::totalsAddUp()
{
    DayData day = samples::typicalDay();
    day.backgroundRate = 1.2345; // 1777.68 a day
    const DayFigures figures = dayFigures(day);
    QCOMPARE(figures.eaten(), 1960);
    QCOMPARE(figures.carbohydrate, 910);
    QCOMPARE(figures.activities, 600);
    QCOMPARE(figures.background, 1778);
    QCOMPARE(figures.balance(), 1960 - 600 - 1778);
}

void TestDayBalance::curveRunsFromMidnightToMidnight_data()
{
    QTest::addColumn<DayData>("day");
    QTest::newRow("nothing at all") << DayData();
    QTest::newRow("typical") << samples::typicalDay();
    QTest::newRow("odd") << samples::oddDay();
    QTest::newRow("crowded") << samples::crowdedDay(900);
}

void TestDayBalance::curveRunsFromMidnightToMidnight()
{
    QFETCH(DayData, day);
    const auto curve = balanceCurve(day);
    QCOMPARE(curve.front().minute, 0.0);
    QCOMPARE(curve.front().calories, 0.0);
    QCOMPARE(curve.back().minute, 1440.0);
    for (size_t i = 1; i < curve.size(); ++i)
        QVERIFY(curve[i].minute >= curve[i - 1].minute);
    QVERIFY(std::abs(curve.back().calories - double(dayFigures(day).balance())) <= 0.5);
}

void TestDayBalance::largeCaloriesDoNotOverflow()
{
    DayData day;
    const int most = std::numeric_limits<int>::max();
    day.meals = {{1, QTime(12, 0), most, most, most}};
    day.activities = {{1, QTime(1, 0), QTime(2, 0), most}, {2, QTime(1, 0), QTime(2, 0), most}};
    QCOMPARE(dayFigures(day).balance(), qint64(most));
    QCOMPARE(balanceCurve(day).back().calories, double(most));
}

void TestDayBalance::impossibleTimesLastOneMinute()
{
    const ActivityItem same = {1, QTime(10, 0), QTime(10, 0), 60};
    QCOMPARE(same.caloriesPerMinute(), 60.0);
    const ActivityItem backwards = {1, QTime(23, 59, 30), QTime(1, 0), 60};
    QCOMPARE(backwards.beginMinute(), 1439.0);
    QCOMPARE(backwards.endMinute(), 1440.0);
    QCOMPARE(minuteOf(QTime()), 0.0);
}

void TestDayBalance::roundSteps()
{
    for (const auto &[atLeast, expected] : std::vector<std::pair<double, double>>{
             {0.3, 0.5}, {1, 1}, {1.01, 2}, {21, 50}, {50, 50}, {51, 100}, {0, 0.01}})
        QCOMPARE(roundStep(atLeast), expected);
}

void TestDayBalance::outlierIsLimited()
{
    QCOMPARE(drawnLimit({}), 0.0);
    QCOMPARE(drawnLimit({0, 0}), 0.0);
    QCOMPARE(drawnLimit({500}), 500.0);     // alone, it is the scale
    QCOMPARE(drawnLimit({900, 40}), 900.0); // a large meal beside a snack
    QCOMPARE(drawnLimit({400, 30000}), 600.0);
    QCOMPARE(drawnLimit({0, 400, 30000, 20}), 600.0);
}

QTEST_APPLESS_MAIN(TestDayBalance)
#include "tst_daybalance.moc"
