// Walking through the daily chart with the keyboard.
#include "chart/navigation.h"
#include "samples.h"

#include <QTest>

using namespace daychart;
using Kind = Target::Kind;

class TestChartNavigation : public QObject
{
    Q_OBJECT

private slots:
    void walksThroughALaneByTime();
    void changesTheLane_data();
    void changesTheLane();
    void emptyLanes();
    void shiftsTheFreePlace_data();
    void shiftsTheFreePlace();
};

void TestChartNavigation::walksThroughALaneByTime()
{
    DayData day = samples::typicalDay();
    std::swap(day.meals[0], day.meals[2]);
    Cursor cursor = stepped(day, {}, Step::Next);
    QCOMPARE(cursor.target, (Target{Kind::Caption, Lane::Meals}));
    std::vector<int> minutes;
    for (const int item : {2, 1, 0}) {
        cursor = stepped(day, cursor, Step::Next);
        QCOMPARE(cursor.target, (Target{Kind::Item, Lane::Meals, item}));
        minutes.push_back(cursor.minute);
    }
    QCOMPARE(minutes, (std::vector<int>{450, 765, 1155}));
    for (int i = 0; i < 2; ++i) // the last one is not left
        cursor = stepped(day, cursor, Step::Next);
    QCOMPARE(cursor.target, (Target{Kind::FreePlace, Lane::Meals}));
    QCOMPARE(stepped(day, cursor, Step::Previous).target, (Target{Kind::Item, Lane::Meals, 0}));
    cursor = stepped(day, stepped(day, cursor, Step::First), Step::Previous);
    QCOMPARE(cursor.target, (Target{Kind::Caption, Lane::Meals}));
    QCOMPARE(stepped(day, cursor, Step::Last).target, (Target{Kind::FreePlace, Lane::Meals}));
}

void TestChartNavigation::changesTheLane_data()
{
    QTest::addColumn<Target>("from");
    QTest::addColumn<Target>("to");
    QTest::newRow("breakfast to the morning's activity")
        << Target{Kind::Item, Lane::Meals, 0} << Target{Kind::Item, Lane::Activities, 0};
    QTest::newRow("dinner to the evening's activity")
        << Target{Kind::Item, Lane::Meals, 2} << Target{Kind::Item, Lane::Activities, 1};
    QTest::newRow("activity to the nearest meal")
        << Target{Kind::Item, Lane::Activities, 1} << Target{Kind::Item, Lane::Meals, 2};
    QTest::newRow("caption to caption")
        << Target{Kind::Caption, Lane::Activities} << Target{Kind::Caption, Lane::Meals};
    QTest::newRow("free place to free place")
        << Target{Kind::FreePlace, Lane::Meals} << Target{Kind::FreePlace, Lane::Activities};
}

void TestChartNavigation::changesTheLane()
{
    QFETCH(Target, from);
    const DayData day = samples::typicalDay();
    QTEST(stepped(day, placedOn(day, from, 600), Step::OtherLane).target, "to");
}

void TestChartNavigation::emptyLanes()
{
    DayData day = samples::typicalDay();
    day.activities.clear();
    const Cursor onMeal = placedOn(day, {Kind::Item, Lane::Meals, 0}, 0);
    QCOMPARE(stepped(day, onMeal, Step::OtherLane).target,
             (Target{Kind::Caption, Lane::Activities}));
    QCOMPARE(allTargets(DayData()).size(), size_t(4));
    QCOMPARE(allTargets(day).size(), size_t(7));
}

void TestChartNavigation::shiftsTheFreePlace_data()
{
    QTest::addColumn<int>("minute");
    QTest::addColumn<int>("by");
    QTest::addColumn<int>("expected");
    QTest::newRow("later") << 720 << 5 << 725;
    QTest::newRow("later, onto the grid") << 722 << 5 << 725;
    QTest::newRow("earlier, onto the grid") << 722 << -5 << 720;
    QTest::newRow("one minute") << 722 << 1 << 723;
    QTest::newRow("an hour earlier") << 720 << -60 << 660;
    QTest::newRow("not before midnight") << 3 << -5 << 0;
    QTest::newRow("not after 23:59") << 1438 << 5 << 1439;
    QTest::newRow("back from 23:59") << 1439 << -5 << 1435;
}

void TestChartNavigation::shiftsTheFreePlace()
{
    QFETCH(int, minute);
    QFETCH(int, by);
    const Cursor shiftedOne = shifted({{Kind::Item, Lane::Activities, 1}, minute}, by);
    QCOMPARE(shiftedOne.target, (Target{Kind::FreePlace, Lane::Activities}));
    QTEST(shiftedOne.minute, "expected");
}

QTEST_APPLESS_MAIN(TestChartNavigation)
#include "tst_chartnavigation.moc"
