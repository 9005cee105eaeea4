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
    void balanceThroughTheDay()
    {
        const auto curve = balanceCurve(samples::typicalDay());
        // 1.25 a minute all day; 430 at 7:30, 4 a minute more from 8:00 to 8:30, 780 at 12:45.
        QCOMPARE(balanceAt(curve, 449), -561.25);
        QCOMPARE(balanceAt(curve, 450), 430 - 562.5);
        QCOMPARE(balanceAt(curve, 495), 430 - 618.75 - 60);
        QCOMPARE(balanceAt(curve, 765), 1210 - 956.25 - 120);
        QCOMPARE(balanceAt(curve, 1440), 1960.0 - 1800 - 600);
    }
    void curveEndsAtTheTotals()
    {
        DayData rounded = samples::typicalDay();
        rounded.backgroundRate = 1.2345; // 1777.68 a day
        QCOMPARE(dayFigures(rounded).background, 1778);
        QCOMPARE(dayFigures(rounded).balance(), 1960 - 600 - 1778);
        for (const DayData &day :
             {DayData(), rounded, samples::oddDay(), samples::crowdedDay(900)}) {
            const auto curve = balanceCurve(day);
            QCOMPARE(curve.front().minute, 0.0);
            QCOMPARE(curve.back().minute, 1440.0);
            for (size_t i = 1; i < curve.size(); ++i)
                QVERIFY(curve[i].minute >= curve[i - 1].minute);
            QVERIFY(std::abs(curve.back().calories - double(dayFigures(day).balance())) <= 0.5);
        }
    }
    void largeCaloriesDoNotOverflow()
    {
        const int most = std::numeric_limits<int>::max();
        const ActivityItem activity = {1, QTime(1, 0), QTime(2, 0), most};
        const DayData day = {0, {{1, QTime(12, 0), most, most, most}}, {activity, activity}};
        QCOMPARE(dayFigures(day).balance(), qint64(most));
        QCOMPARE(balanceCurve(day).back().calories, double(most));
    }
    void impossibleTimesLastOneMinute()
    {
        const ActivityItem same = {1, QTime(10, 0), QTime(10, 0), 60};
        QCOMPARE(same.caloriesPerMinute(), 60.0);
        const ActivityItem backwards = {1, QTime(23, 59, 30), QTime(1, 0), 60};
        QCOMPARE(backwards.beginMinute(), 1439.0);
        QCOMPARE(backwards.endMinute(), 1440.0);
        QCOMPARE(minuteOf(QTime()), 0.0);
    }
    void outlierIsLimited()
    {
        for (const auto &[magnitudes, limit] : std::vector<std::pair<std::vector<double>, double>>{
                 {{}, 0}, {{500}, 500}, {{900, 40}, 900}, {{0, 400, 30000, 20}, 600}})
            QCOMPARE(drawnLimit(magnitudes), limit);
    }
};

QTEST_APPLESS_MAIN(TestDayBalance)
#include "tst_daybalance.moc"
