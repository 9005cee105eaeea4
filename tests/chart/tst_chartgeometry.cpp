// Where things stand on the daily chart, and that what is seen is what is hit.
#include "chart/hittest.h"
#include "samples.h"

#include <QTest>

using namespace daychart;

namespace {

QVector<QRectF> textRects(const ChartGeometry &geometry)
{
    QVector<QRectF> rects = {geometry.balanceEnd.rect};
    for (const PlacedText &text : geometry.texts)
        rects << text.rect;
    for (const auto *labels : {&geometry.mealLabels, &geometry.activityLabels}) {
        for (const ItemLabel &label : *labels)
            rects << label.text.rect;
    }
    for (const PlacedText &hint : geometry.hints)
        rects << hint.rect;
    return rects;
}

bool overlap(const QRectF &a, const QRectF &b)
{
    const QRectF common = a & b;
    return common.width() > 0.01 && common.height() > 0.01;
}

bool within(const QRectF &inner, const QRectF &outer)
{
    return outer.adjusted(-0.51, -0.51, 0.51, 0.51).contains(inner);
}

} // namespace

class TestChartGeometry : public QObject
{
    Q_OBJECT

private slots:
    void everythingFits_data();
    void everythingFits();
    void itemsAreHitWhereTheyAre_data() { everythingFits_data(); }
    void itemsAreHitWhereTheyAre();
    void columnsAreStackedToScale();
    void columnsStandAtTheirTimes();
    void mealWithoutCaloriesIsAStub();
    void negativeMealHangs();
    void outlierLeavesOthersVisible();
    void activitiesStackWhereTheyOverlap();
    void shortActivityCanBeSeen();
    void balanceMeetsItsScale();
    void captionsAreHit();
    void minutesOfPositions_data();
    void minutesOfPositions();
    void hourLabels_data();
    void hourLabels();
    void noRoomAtAll_data();
    void noRoomAtAll();
};

void TestChartGeometry::everythingFits_data()
{
    QTest::addColumn<DayData>("day");
    QTest::addColumn<QSizeF>("size");
    QTest::addColumn<double>("textScale");
    QTest::addColumn<bool>("clock24");

    DayData onlyBackground;
    onlyBackground.backgroundRate = 1.25;
    DayData allAtOnce = samples::crowdedDay(900);
    for (MealItem &meal : allAtOnce.meals)
        meal.time = QTime(23, 59);
    for (ActivityItem &activity : allAtOnce.activities)
        activity = {activity.id, QTime(0, 0), QTime(0, 1), 0};
    const std::vector<std::pair<const char *, DayData>> days = {
        {"nothing", {}},
        {"background", onlyBackground},
        {"typical", samples::typicalDay()},
        {"odd", samples::oddDay()},
        {"large", samples::largeDay()},
        {"forty", samples::crowdedDay(960)},
        {"forty in an hour", samples::crowdedDay(60)},
        {"forty at once", allAtOnce},
    };
    for (const auto &[name, day] : days) {
        QTest::addRow("%s, small", name) << day << QSizeF(600, 400) << 1.0 << true;
        QTest::addRow("%s, large text", name) << day << QSizeF(3840, 2160) << 2.5 << true;
        QTest::addRow("%s, 12-hour clock", name) << day << QSizeF(1000, 650) << 1.0 << false;
    }
}

void TestChartGeometry::everythingFits()
{
    QFETCH(DayData, day);
    QFETCH(QSizeF, size);
    QFETCH(double, textScale);
    QFETCH(bool, clock24);
    const QRectF area(QPointF(30, 20), size);
    const ChartGeometry g =
        chartGeometry(day, area, samples::metrics(textScale), samples::texts(clock24));

    const auto rects = textRects(g);
    for (int i = 0; i < rects.size(); ++i) {
        QVERIFY2(within(rects[i], area), qPrintable(QStringLiteral("text %1 is cut off").arg(i)));
        for (int j = 0; j < i; ++j)
            QVERIFY2(!overlap(rects[i], rects[j]),
                     qPrintable(QStringLiteral("texts %1 and %2 overlap").arg(i).arg(j)));
    }
    QCOMPARE(g.columns.size(), day.meals.size());
    for (size_t i = 0; i < g.columns.size(); ++i) {
        QVERIFY(within(g.columns[i].rect, g.meals.area));
        QVERIFY(g.columns[i].rect.height() > 3 && g.columns[i].rect.width() > 3);
        for (size_t j = 0; j < i; ++j)
            QVERIFY(!overlap(g.columns[i].rect, g.columns[j].rect));
    }
    QCOMPARE(g.blocks.size(), day.activities.size());
    for (size_t i = 0; i < g.blocks.size(); ++i) {
        QVERIFY(within(g.blocks[i].bounds, g.activities.area));
        QVERIFY(g.blocks[i].bounds.width() > 3 && g.blocks[i].bounds.height() > 1);
        for (const QRectF &segment : g.blocks[i].segments) {
            for (size_t j = 0; j < i; ++j) {
                for (const QRectF &other : g.blocks[j].segments)
                    QVERIFY(!overlap(segment, other));
            }
        }
    }
    for (const QPointF point : g.balance)
        QVERIFY((g.meals.area | g.activities.area).adjusted(0, -0.5, 0.5, 0.5).contains(point));
}

void TestChartGeometry::itemsAreHitWhereTheyAre()
{
    QFETCH(DayData, day);
    QFETCH(QSizeF, size);
    QFETCH(double, textScale);
    QFETCH(bool, clock24);
    const ChartGeometry g = chartGeometry(day, QRectF(QPointF(), size), samples::metrics(textScale),
                                          samples::texts(clock24));
    for (size_t i = 0; i < g.columns.size(); ++i)
        QCOMPARE(targetAt(g, g.columns[i].rect.center()).item, int(i));
    for (size_t i = 0; i < g.blocks.size(); ++i) {
        for (const QRectF &segment : g.blocks[i].segments) {
            const Target target = targetAt(g, segment.center());
            QVERIFY(target.isItem(Lane::Activities));
            QCOMPARE(target.item, int(i));
        }
    }
    for (const ItemLabel &label : g.mealLabels)
        QCOMPARE(targetAt(g, label.text.rect.center()).item, label.item);
    for (const ItemLabel &label : g.activityLabels)
        QCOMPARE(targetAt(g, label.text.rect.center()).item, label.item);
}

void TestChartGeometry::columnsAreStackedToScale()
{
    const DayData day = samples::typicalDay();
    const ChartGeometry g =
        chartGeometry(day, QRectF(0, 0, 1000, 650), samples::metrics(), samples::texts());
    const double perCalorie = g.columns[1].rect.height() / 780;
    for (size_t i = 0; i < day.meals.size(); ++i) {
        const auto &parts = g.columns[i].parts;
        QCOMPARE(parts[0].height(), day.meals[i].carbohydrate * perCalorie);
        QCOMPARE(parts[1].height(), day.meals[i].fat * perCalorie);
        QCOMPARE(parts[2].height(), day.meals[i].protein * perCalorie);
        QCOMPARE(parts[0].bottom(), g.meals.scale.zeroY);
        QCOMPARE(parts[1].bottom(), parts[0].top());
        QCOMPARE(parts[2].bottom(), parts[1].top());
    }
}

void TestChartGeometry::columnsStandAtTheirTimes()
{
    DayData day = samples::typicalDay();
    day.meals.push_back({14, QTime(12, 45), 100, 0, 0});
    const ChartGeometry g =
        chartGeometry(day, QRectF(0, 0, 600, 400), samples::metrics(), samples::texts());
    const double atHalfPastSeven = g.time.left + g.time.width * 7.5 / 24;
    QVERIFY(std::abs(g.columns[0].rect.center().x() - atHalfPastSeven) < 0.01);
    // Two at the same time stand on both sides of it, in the order in which they came.
    const double between = (g.columns[1].rect.center().x() + g.columns[3].rect.center().x()) / 2;
    QVERIFY(std::abs(between - g.time.x(765)) < 0.01);
    QVERIFY(g.columns[1].rect.right() <= g.columns[3].rect.left());
}

void TestChartGeometry::mealWithoutCaloriesIsAStub()
{
    const ChartGeometry g = chartGeometry(samples::oddDay(), QRectF(0, 0, 600, 400),
                                          samples::metrics(), samples::texts());
    QCOMPARE(g.columns[1].rect.bottom(), g.meals.scale.zeroY);
    QCOMPARE(g.columns[1].rect.height(), 4.0);
    QVERIFY(std::all_of(g.columns[1].parts.begin(), g.columns[1].parts.end(),
                        [](const QRectF &part) { return part.isNull(); }));
}

void TestChartGeometry::negativeMealHangs()
{
    const ChartGeometry g = chartGeometry(samples::oddDay(), QRectF(0, 0, 600, 400),
                                          samples::metrics(), samples::texts());
    const double zero = g.meals.scale.zeroY;
    QCOMPARE(g.columns[2].rect.top(), zero);
    QVERIFY(g.columns[2].rect.bottom() > zero + 10);
    // A meal of both signs stands on both sides of zero.
    QCOMPARE(g.columns[3].parts[0].bottom(), zero);
    QCOMPARE(g.columns[3].parts[1].top(), zero);
    QCOMPARE(g.columns[3].parts[2].bottom(), g.columns[3].parts[0].top());
}

void TestChartGeometry::outlierLeavesOthersVisible()
{
    const ChartGeometry g = chartGeometry(samples::largeDay(), QRectF(0, 0, 600, 400),
                                          samples::metrics(), samples::texts());
    QVERIFY(g.columns[3].cut && g.blocks[2].cut);
    QVERIFY(!g.columns[1].cut && !g.blocks[1].cut);
    QVERIFY(g.columns[1].rect.height() > g.meals.area.height() / 3);
    QVERIFY(g.columns[3].rect.height() > g.columns[1].rect.height());
    QVERIFY(g.blocks[1].bounds.height() > g.activities.area.height() / 3);
    const auto said = std::find_if(g.mealLabels.begin(), g.mealLabels.end(),
                                   [](const ItemLabel &label) { return label.item == 3; });
    QVERIFY(said != g.mealLabels.end());
    QCOMPARE(said->text.text, QStringLiteral("30000"));
}

void TestChartGeometry::activitiesStackWhereTheyOverlap()
{
    DayData day;
    day.backgroundRate = 1;
    day.activities = {{1, QTime(9, 0), QTime(11, 0), 240}, {2, QTime(10, 0), QTime(12, 0), 480}};
    const ChartGeometry g =
        chartGeometry(day, QRectF(0, 0, 1000, 650), samples::metrics(), samples::texts());
    const ValueScale &scale = g.activities.scale;
    QCOMPARE(g.band.top(), scale.y(1));
    QCOMPARE(g.blocks[0].segments.size(), size_t(1));
    QCOMPARE(g.blocks[0].bounds.bottom(), scale.y(1));
    QCOMPARE(g.blocks[0].bounds.top(), scale.y(3));
    // The second one stands on the first while that lasts, then on the background.
    QCOMPARE(g.blocks[1].segments.size(), size_t(2));
    QCOMPARE(g.blocks[1].segments[0].bottom(), scale.y(3));
    QCOMPARE(g.blocks[1].segments[0].top(), scale.y(7));
    QCOMPARE(g.blocks[1].segments[1].bottom(), scale.y(1));
    QCOMPARE(g.blocks[1].segments[1].left(), g.time.x(660));
    QCOMPARE(g.blocks[1].bounds.right(), g.time.x(720));
}

void TestChartGeometry::shortActivityCanBeSeen()
{
    const ChartGeometry g = chartGeometry(samples::oddDay(), QRectF(0, 0, 600, 400),
                                          samples::metrics(), samples::texts());
    QVERIFY(std::abs(g.blocks[0].bounds.center().x() - g.time.x(360.5)) < 1);
    // Below zero calories per minute is what a negative activity takes from the background.
    QCOMPARE(g.blocks[4].bounds.top(), g.activities.scale.y(1.25));
    QVERIFY(g.blocks[4].bounds.bottom() > g.activities.scale.zeroY);
    QVERIFY(g.blocks[4].negative);
}

void TestChartGeometry::balanceMeetsItsScale()
{
    const DayData day = samples::typicalDay();
    const ChartGeometry g =
        chartGeometry(day, QRectF(0, 0, 1000, 650), samples::metrics(), samples::texts());
    QCOMPARE(g.balance.front(), QPointF(g.time.left, g.balanceZeroY));
    QCOMPARE(g.balance.back().x(), g.time.left + g.time.width);
    QVERIFY(g.balance.back().y() > g.balanceZeroY); // 440 less eaten than burnt
    QCOMPARE(g.balanceEnd.text, QStringLiteral("-440"));
    // The same length for the same calories: breakfast's jump of 430.
    const double perCalorie = (g.balance.back().y() - g.balanceZeroY) / 440;
    QCOMPARE(g.balance[1].y() - g.balance[2].y(), 430 * perCalorie);
}

void TestChartGeometry::captionsAreHit()
{
    const ChartGeometry g = chartGeometry(samples::typicalDay(), QRectF(0, 0, 600, 400),
                                          samples::metrics(), samples::texts());
    using Kind = Target::Kind;
    for (const Lane lane : {Lane::Meals, Lane::Activities}) {
        QCOMPARE(targetAt(g, g.lane(lane).header.center()), (Target{Kind::Caption, lane}));
        QCOMPARE(targetAt(g, g.lane(lane).figure.center()), (Target{Kind::Caption, lane}));
        const QPointF free(g.time.x(180), g.lane(lane).area.center().y());
        QCOMPARE(targetAt(g, free), (Target{Kind::FreePlace, lane}));
    }
    QCOMPARE(targetAt(g, g.band.center() - QPointF(g.time.width / 3, 0)),
             (Target{Kind::FreePlace, Lane::Activities}));
    for (const QPointF outside : {QPointF(-5, 50), g.timeAxis.center(), g.balanceEnd.rect.center()})
        QCOMPARE(targetAt(g, outside), Target());
}

void TestChartGeometry::minutesOfPositions_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<double>("minute");
    QTest::addColumn<int>("expected");
    QTest::newRow("coarse, on five") << 600.0 << 870.0 << 870;
    QTest::newRow("coarse, between") << 600.0 << 872.4 << 870;
    QTest::newRow("coarse, nearer to the next") << 600.0 << 872.6 << 875;
    QTest::newRow("coarse, last minutes") << 600.0 << 1438.0 << 1439;
    QTest::newRow("fine") << 3840.0 << 872.4 << 872;
    QTest::newRow("fine, midnight to come") << 3840.0 << 1440.0 << 1439;
    QTest::newRow("left of the axis") << 600.0 << -100.0 << 0;
    QTest::newRow("right of the axis") << 600.0 << 2000.0 << 1439;
}

void TestChartGeometry::minutesOfPositions()
{
    QFETCH(double, width);
    QFETCH(double, minute);
    const ChartGeometry g = chartGeometry(samples::typicalDay(), QRectF(0, 0, width, 400),
                                          samples::metrics(), samples::texts());
    QTEST(minuteAt(g, g.time.x(minute)), "expected");
}

void TestChartGeometry::hourLabels_data()
{
    QTest::addColumn<bool>("clock24");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("24 hours") << true << QStringList{"00:00", "06:00", "12:00", "18:00", "24:00"};
    QTest::newRow("12 hours") << false << QStringList{"12 am", "6 am", "12 pm", "6 pm", "12 am"};
}

void TestChartGeometry::hourLabels()
{
    QFETCH(bool, clock24);
    QFETCH(QStringList, expected);
    const ChartGeometry g = chartGeometry(samples::typicalDay(), QRectF(0, 0, 500, 400),
                                          samples::metrics(), samples::texts(clock24));
    QStringList found;
    for (const PlacedText &text : g.texts) {
        if (text.rect.top() > g.timeAxis.top())
            found << text.text;
    }
    QCOMPARE(found, expected);
}

void TestChartGeometry::noRoomAtAll_data()
{
    QTest::addColumn<QSizeF>("size");
    QTest::newRow("none") << QSizeF(0, 0);
    QTest::newRow("a dot") << QSizeF(1, 1);
    QTest::newRow("flat") << QSizeF(900, 5);
    QTest::newRow("narrow") << QSizeF(5, 900);
}

void TestChartGeometry::noRoomAtAll()
{
    QFETCH(QSizeF, size);
    for (const DayData &day : {DayData(), samples::oddDay(), samples::crowdedDay(60)}) {
        const ChartGeometry g =
            chartGeometry(day, QRectF(QPointF(), size), samples::metrics(), samples::texts());
        for (const MealColumn &column : g.columns)
            QVERIFY(std::isfinite(column.rect.top()) && std::isfinite(column.rect.left()));
        for (const ActivityBlock &block : g.blocks)
            QVERIFY(std::isfinite(block.bounds.top()) && std::isfinite(block.bounds.left()));
        for (const QPointF point : g.balance)
            QVERIFY(std::isfinite(point.x()) && std::isfinite(point.y()));
        const int minute = minuteAt(g, size.width() / 2);
        QVERIFY(minute >= 0 && minute < 1440);
    }
}

QTEST_APPLESS_MAIN(TestChartGeometry)
#include "tst_chartgeometry.moc"
