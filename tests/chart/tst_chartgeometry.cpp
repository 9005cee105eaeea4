// The balance of a day, where things stand on the daily chart, and that what is seen is what is
// hit.
#include "chart/charttexts.h"
#include "chart/daylayout.h"
#include "chart/hittest.h"
#include "samples.h"

#include <QTest>

using namespace daychart;
using Kind = Target::Kind;

namespace {

/// In text 16 high of which every character is 8 wide, more in larger roles.
DayGeometry geometryOf(const DayData &day, const QRectF &area = {0, 0, 600, 400},
                       bool clock24 = true, double scale = 1)
{
    const auto width = [scale](const QString &text, TextRole role) {
        return scale * (role == TextRole::Figure ? 11 : 8) * double(text.size());
    };
    return dayGeometry(day, area, {16 * scale, 22 * scale, width},
                       ChartTexts(QLocale::c(), clock24));
}

DayData dayWithOutliers()
{
    DayData day = samples::typicalDay();
    day.meals.push_back({14, QTime(20, 0), {10000, 15000, 5000}});
    day.activities.push_back({23, QTime(21, 0), QTime(21, 1), 30000});
    return day;
}

std::vector<QRectF> textRects(const DayGeometry &g)
{
    std::vector<QRectF> rects = {g.balanceEnd.rect};
    for (const auto &texts : {g.texts, g.hints}) {
        for (const PlacedText &text : texts)
            rects.push_back(text.rect);
    }
    for (const auto &labels : {g.mealLabels, g.activityLabels}) {
        for (const ItemLabel &label : labels)
            rects.push_back(label.text.rect);
    }
    return rects;
}

/// Whether all of them lie in the area and none on another one.
bool fit(const std::vector<QRectF> &rects, const QRectF &area)
{
    for (size_t i = 0; i < rects.size(); ++i) {
        if (!area.adjusted(-0.51, -0.51, 0.51, 0.51).contains(rects[i]))
            return false;
        for (size_t j = 0; j < i; ++j) {
            const QRectF common = rects[i] & rects[j];
            if (common.width() > 0.01 && common.height() > 0.01)
                return false;
        }
    }
    return true;
}

} // namespace

class tst_chartgeometry : public QObject
{
    Q_OBJECT

private slots:
    void balanceThroughTheDay()
    {
        const auto curve = balanceCurve(samples::typicalDay());
        // 1.25 a minute all day; 430 at 7:30, 4 a minute more from 8:00 to 8:30, 1530 later on.
        QCOMPARE(balanceAt(curve, 450), 430 - 562.5);
        QCOMPARE(balanceAt(curve, 495), 430 - 618.75 - 60);
        QCOMPARE(balanceAt(curve, 1440), 1960.0 - 1800 - 600);
        DayData rounded = samples::typicalDay();
        rounded.backgroundRate = 1.2345; // 1777.68 a day
        QCOMPARE(dayFigures(rounded).balance(), 1960 - 600 - 1778);
    }
    void impossibleItems()
    {
        const int most = std::numeric_limits<int>::max();
        const ActivityItem atOnce = {1, QTime(10, 0), QTime(10, 0), most};
        const ActivityItem backwards = {1, QTime(23, 59, 30), QTime(1, 0), most};
        QCOMPARE(backwards.beginMinute(), 1439.0);
        QCOMPARE(backwards.endMinute(), 1440.0);
        const DayData day = {0, {{1, QTime(12, 0), {most, most, most}}}, {atOnce, backwards}};
        QCOMPARE(dayFigures(day).balance(), qint64(most));
    }
    void everythingFitsAndIsHit_data()
    {
        QTest::addColumn<DayData>("day");
        QTest::newRow("nothing") << DayData();
        QTest::newRow("outliers") << dayWithOutliers();
        for (quint32 seed = 1; seed <= 100; ++seed)
            QTest::addRow("any day %u", seed) << samples::anyDay(seed);
    }
    void everythingFitsAndIsHit()
    {
        QFETCH(DayData, day);
        const auto curve = balanceCurve(day);
        QVERIFY(curve.front().minute == 0 && curve.back().minute == 1440);
        QVERIFY(std::abs(curve.back().calories - double(dayFigures(day).balance())) <= 0.5);
        const QRectF small(30, 20, 600, 400), large(30, 20, 3840, 2160);
        for (const DayGeometry &g : {geometryOf(day, small), geometryOf(day, large, true, 2.5),
                                     geometryOf(day, {0, 0, 1000, 650}, false)}) {
            QVERIFY(fit(textRects(g), g.area));
            QCOMPARE(g.columns.size(), day.meals.size());
            QCOMPARE(g.blocks.size(), day.activities.size());
            for (size_t i = 1; i < curve.size(); ++i) { // two points of one scale around zero
                QVERIFY(g.balance[i].x() >= g.balance[i - 1].x());
                QVERIFY((g.balanceZeroY - g.balance[i].y()) * curve[i].calories >= 0);
                QVERIFY(std::abs((g.balance[i].y() - g.balanceZeroY) * curve[i - 1].calories -
                                 (g.balance[i - 1].y() - g.balanceZeroY) * curve[i].calories) <
                        1e-6 * (1 + std::abs(curve[i].calories)));
            }
            std::vector<QRectF> columns, segments;
            for (size_t i = 0; i < g.columns.size(); ++i) {
                const QRectF &column = columns.emplace_back(g.columns[i].rect);
                QVERIFY(column.height() > 3 && column.width() > 3);
                QCOMPARE(targetAt(g, column.center()), (Target{Kind::Item, Lane::Meals, int(i)}));
            }
            for (size_t i = 0; i < g.blocks.size(); ++i) {
                QVERIFY(g.blocks[i].bounds.width() > 3 && g.blocks[i].bounds.height() > 1);
                for (const QRectF &segment : g.blocks[i].segments) {
                    segments.push_back(segment);
                    QCOMPARE(targetAt(g, segment.center()),
                             (Target{Kind::Item, Lane::Activities, int(i)}));
                }
            }
            QVERIFY(fit(columns, g.meals.area) && fit(segments, g.activities.area));
            for (const auto &labels : {g.mealLabels, g.activityLabels}) {
                for (const ItemLabel &label : labels)
                    QCOMPARE(targetAt(g, label.text.rect.center()).item, label.item);
            }
        }
    }
    void itemsStandToScaleAtTheirTimes()
    {
        DayData day = samples::typicalDay();
        day.meals.insert(day.meals.end(), {{14, QTime(12, 45), {0, 100, 0}},
                                           {15, QTime(2, 0), {}},
                                           {16, QTime(4, 30), {-40, -100, -30}},
                                           {17, QTime(22, 0), {-60, 100, 30}}});
        day.activities.push_back({23, QTime(15, 0), QTime(16, 0), -120});
        const DayGeometry g = geometryOf(day);
        const double zero = g.meals.scale.zeroY;
        const auto &parts = g.columns[1].parts;
        double bottom = zero;
        for (const auto &[part, calories] : {std::pair(Nutrient::Carbohydrate, 340),
                                             {Nutrient::Fat, 260},
                                             {Nutrient::Protein, 180}}) {
            QCOMPARE(parts[part].bottom(), bottom);
            QCOMPARE(parts[part].height(), calories * g.columns[0].rect.height() / 430);
            bottom = parts[part].top();
        }
        QVERIFY(std::abs(g.columns[0].rect.center().x() - g.time.x(450)) < 0.01);
        // Two at the same time stand on both sides of it, in the order in which they came.
        const QRectF &first = g.columns[1].rect, &second = g.columns[3].rect;
        QVERIFY(std::abs((first.center().x() + second.center().x()) / 2 - g.time.x(765)) < 0.01);
        QVERIFY(first.right() <= second.left());
        QCOMPARE(g.columns[4].rect.bottom(), zero); // no calories: a stub
        QCOMPARE(g.columns[5].rect.top(), zero);
        // A meal of both signs stands on both sides of zero.
        QCOMPARE(g.columns[6].parts[Nutrient::Carbohydrate].bottom(), zero);
        QCOMPARE(g.columns[6].parts[Nutrient::Fat].top(), zero);
        QCOMPARE(g.columns[6].parts[Nutrient::Protein].bottom(),
                 g.columns[6].parts[Nutrient::Carbohydrate].top());
        // Below zero calories per minute is what a negative activity takes from the background.
        QCOMPARE(g.blocks[2].bounds.top(), g.activities.scale.y(1.25));
        QVERIFY(g.blocks[2].bounds.bottom() > g.activities.scale.zeroY && g.blocks[2].negative);
    }
    void outlierLeavesOthersVisible()
    {
        const DayGeometry g = geometryOf(dayWithOutliers());
        QVERIFY(g.columns[3].cut && g.blocks[2].cut && !g.columns[1].cut && !g.blocks[1].cut);
        QVERIFY(g.columns[1].rect.height() > g.meals.area.height() / 3);
        QVERIFY(g.blocks[1].bounds.height() > g.activities.area.height() / 3);
        QVERIFY(std::any_of(g.mealLabels.begin(), g.mealLabels.end(), [](const ItemLabel &label) {
            return label.item == 3 && label.text.text == QStringLiteral("30000");
        }));
    }
    void activitiesStackWhereTheyOverlap()
    {
        const DayGeometry g = geometryOf(
            {1, {}, {{1, QTime(9, 0), QTime(11, 0), 240}, {2, QTime(10, 0), QTime(12, 0), 480}}});
        const auto box = [&](int begin, int end, double low, double high) {
            const ValueScale &scale = g.activities.scale;
            return QRectF(QPointF(g.time.x(begin), scale.y(high)),
                          QPointF(g.time.x(end), scale.y(low)));
        };
        QCOMPARE(g.blocks[0].segments, std::vector{box(540, 660, 1, 3)});
        // The second one stands on the first while that lasts, then on the background.
        QCOMPARE(g.blocks[1].segments, (std::vector{box(600, 660, 3, 7), box(660, 720, 1, 5)}));
    }
};

QTEST_APPLESS_MAIN(tst_chartgeometry)
#include "tst_chartgeometry.moc"
