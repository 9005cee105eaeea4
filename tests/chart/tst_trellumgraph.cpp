// The daily chart under mouse and keyboard, and on paper.
#include "chart/TrellumGraph.h"
#include "chart/hittest.h"
#include "samples.h"

#include <QApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include <memory>

using namespace daychart;

class TestTrellumGraph : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { m_graph.reset(); }

    void clickOnItems();
    void clickOnCaptionsAndTotals();
    void clickOnFreePlaces();
    void clickAtTheEndOfTheDay();
    void releaseElsewhereDoesNothing();
    void otherButtonsDoNothing();
    void keyboardWalksAndChooses();
    void keyboardChoosesAFreePlace();
    void keyboardKeepsItsItem();
    void itemsShowFromRepaintOn();
    void answerMayChangeTheChart();
    void pointerTellsWhatAClickDoes();
    void tipsTellTheFigures();
    void twelveHourClock();
    void paperHasTheSizeOfTheFont();
    void paintsFast();

private:
    void fill(const DayData &day);
    ChartGeometry geometry() const;
    QPoint columnOf(size_t item) const { return geometry().columns[item].rect.center().toPoint(); }
    QPoint blockOf(size_t item) const
    {
        return geometry().blocks[item].segments.front().center().toPoint();
    }
    QPoint place(Lane lane, int minute) const;
    void click(QPoint point) { QTest::mouseClick(m_graph.get(), Qt::LeftButton, {}, point); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(m_graph.get(), key, modifiers);
    }
    /// What was raised since the last call, as words.
    QStringList raised() { return std::exchange(m_raised, {}); }

    std::unique_ptr<TrellumGraph> m_graph;
    QStringList m_raised;
};

void TestTrellumGraph::init()
{
    m_graph = std::make_unique<TrellumGraph>();
    m_graph->setLocale(QLocale::c());
    m_graph->resize(1000, 650);
    const auto chosen = [this](const QString &lane) {
        return [this, lane](int id, bool hit, QTime time) {
            m_raised << QStringLiteral("%1 %2 %3 %4")
                            .arg(lane)
                            .arg(id)
                            .arg(hit)
                            .arg(time.toString(QStringLiteral("HH:mm")));
        };
    };
    const auto free = [this](const QString &lane) {
        return [this, lane](QTime time) {
            m_raised << lane + QLatin1Char(' ') + time.toString(QStringLiteral("HH:mm"));
        };
    };
    connect(m_graph.get(), &TrellumGraph::mealItemChosen, this, chosen("meal"));
    connect(m_graph.get(), &TrellumGraph::activityItemChosen, this, chosen("activity"));
    connect(m_graph.get(), &TrellumGraph::freeMealPlaceChosen, this, free("new meal"));
    connect(m_graph.get(), &TrellumGraph::freeActivityPlaceChosen, this, free("new activity"));
    fill(samples::typicalDay());
    m_graph->show();
    m_graph->activateWindow();
    m_graph->setFocus();
    QVERIFY(QTest::qWaitForWindowActive(m_graph.get()));
    m_raised.clear();
}

void TestTrellumGraph::fill(const DayData &day)
{
    m_graph->clear();
    m_graph->setBackgroundRate(day.backgroundRate);
    for (const MealItem &m : day.meals)
        m_graph->addMeal(m.id, m.time, m.carbohydrate, m.fat, m.protein);
    for (const ActivityItem &a : day.activities)
        m_graph->addActivity(a.id, a.begin, a.end, a.calories);
    m_graph->repaintChart();
}

/// The geometry that the control must have, computed anew.
ChartGeometry TestTrellumGraph::geometry() const
{
    const ChartFonts fonts(m_graph->font(), m_graph->logicalDpiY(), m_graph.get());
    return chartGeometry(samples::typicalDay(), m_graph->rect(), metricsOf(fonts, m_graph.get()),
                         samples::texts());
}

QPoint TestTrellumGraph::place(Lane lane, int minute) const
{
    const ChartGeometry g = geometry();
    return {qRound(g.time.x(minute)), qRound(g.lane(lane).area.center().y())};
}

void TestTrellumGraph::clickOnItems()
{
    click(columnOf(0));
    QCOMPARE(raised(), QStringList("meal 11 1 07:30"));
    click(columnOf(2));
    QCOMPARE(raised(), QStringList("meal 13 1 19:15"));
    click(blockOf(1)); // in the middle of 17:30 to 18:30
    QCOMPARE(raised(), QStringList("activity 22 1 18:00"));
}

void TestTrellumGraph::clickOnCaptionsAndTotals()
{
    // They have no time of their own: noon, then the last one pointed at.
    click(geometry().meals.header.center().toPoint());
    QCOMPARE(raised(), QStringList("meal 0 0 12:00"));
    click(geometry().activities.header.center().toPoint());
    QCOMPARE(raised(), QStringList("activity 0 0 12:00"));
    click(place(Lane::Meals, 240));
    raised();
    click(geometry().meals.figure.center().toPoint());
    QCOMPARE(raised(), QStringList("meal 0 0 04:00"));
    click(geometry().activities.figure.center().toPoint());
    QCOMPARE(raised(), QStringList("activity 0 0 04:00"));
}

void TestTrellumGraph::clickOnFreePlaces()
{
    click(place(Lane::Meals, 14 * 60 + 30));
    QCOMPARE(raised(), QStringList("new meal 14:30"));
    click(place(Lane::Activities, 14 * 60 + 30));
    QCOMPARE(raised(), QStringList("new activity 14:30"));
    click(geometry().timeAxis.center().toPoint());
    QCOMPARE(raised(), QStringList());
}

void TestTrellumGraph::clickAtTheEndOfTheDay()
{
    click({int(geometry().meals.area.right()) - 1, int(geometry().meals.area.top()) + 2});
    QCOMPARE(raised(), QStringList("new meal 23:59"));
    click({int(geometry().meals.area.left()) + 1, int(geometry().meals.area.top()) + 2});
    QCOMPARE(raised(), QStringList("new meal 00:00"));
}

void TestTrellumGraph::releaseElsewhereDoesNothing()
{
    const auto drag = [this](QPoint from, QPoint to) {
        QTest::mousePress(m_graph.get(), Qt::LeftButton, {}, from);
        QTest::mouseRelease(m_graph.get(), Qt::LeftButton, {}, to);
    };
    drag(columnOf(0), columnOf(1));
    drag(columnOf(0), place(Lane::Meals, 240));
    drag(place(Lane::Meals, 240), place(Lane::Meals, 600));
    drag(place(Lane::Meals, 240), place(Lane::Activities, 240));
    QCOMPARE(raised(), QStringList());
    drag(columnOf(0), columnOf(0) + QPoint(2, 30));
    QCOMPARE(raised().size(), 1);
}

void TestTrellumGraph::otherButtonsDoNothing()
{
    for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton})
        QTest::mouseClick(m_graph.get(), button, {}, columnOf(0));
    QCOMPARE(raised(), QStringList());
}

void TestTrellumGraph::keyboardWalksAndChooses()
{
    press(Qt::Key_Return); // the first stop is the caption of the meals
    press(Qt::Key_Right);
    press(Qt::Key_Space);
    press(Qt::Key_Right);
    press(Qt::Key_Enter);
    QCOMPARE(raised(), (QStringList{"meal 0 0 12:00", "meal 11 1 07:30", "meal 12 1 12:45"}));
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    press(Qt::Key_Down); // there is no further lane
    press(Qt::Key_Home);
    press(Qt::Key_Return);
    QCOMPARE(raised(), (QStringList{"activity 21 1 08:00", "activity 0 0 08:00"}));
    press(Qt::Key_Up);
    press(Qt::Key_End);
    press(Qt::Key_Left);
    press(Qt::Key_Return);
    QCOMPARE(raised(), QStringList("meal 13 1 19:15"));
}

void TestTrellumGraph::keyboardChoosesAFreePlace()
{
    press(Qt::Key_Right, Qt::ControlModifier);
    press(Qt::Key_Return);
    press(Qt::Key_PageDown);
    press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
    press(Qt::Key_Return);
    QCOMPARE(raised(), (QStringList{"new meal 12:05", "new meal 13:06"}));
    press(Qt::Key_Down);
    press(Qt::Key_PageUp);
    press(Qt::Key_Left, Qt::ControlModifier);
    press(Qt::Key_Return);
    QCOMPARE(raised(), QStringList("new activity 12:05"));
    for (int i = 0; i < 20; ++i)
        press(Qt::Key_PageDown);
    press(Qt::Key_Return);
    QCOMPARE(raised(), QStringList("new activity 23:59"));
}

void TestTrellumGraph::keyboardKeepsItsItem()
{
    press(Qt::Key_Right);
    press(Qt::Key_Right);
    DayData day = samples::typicalDay();
    day.meals = {{9, QTime(6, 0), 50, 0, 0}, day.meals[0], day.meals[1], day.meals[2]};
    fill(day);
    press(Qt::Key_Return);
    QCOMPARE(raised(), QStringList("meal 12 1 12:45"));
    fill(DayData());
    press(Qt::Key_Return);
    QCOMPARE(raised(), QStringList("meal 0 0 12:45"));
}

void TestTrellumGraph::itemsShowFromRepaintOn()
{
    const QPoint breakfast = columnOf(0);
    m_graph->clear();
    click(breakfast);
    QCOMPARE(raised(), QStringList("meal 11 1 07:30"));
    m_graph->repaintChart();
    click(breakfast);
    QVERIFY(raised().value(0).startsWith(QStringLiteral("new meal 07:")));
    QVERIFY(
        m_graph->accessibleDescription().startsWith(QStringLiteral("Eaten 0 kcal, burnt 1800")));
}

void TestTrellumGraph::answerMayChangeTheChart()
{
    connect(m_graph.get(), &TrellumGraph::mealItemChosen, this, [this] { fill(DayData()); });
    click(columnOf(2));
    QCOMPARE(raised(), QStringList("meal 13 1 19:15"));
    QVERIFY(!m_graph->grab().isNull());
}

void TestTrellumGraph::pointerTellsWhatAClickDoes()
{
    const auto hovered = [this](QPoint point) {
        QTest::mouseMove(m_graph.get(), point);
        return m_graph->grab().toImage();
    };
    const QImage nowhere = hovered(geometry().timeAxis.center().toPoint());
    QCOMPARE(m_graph->cursor().shape(), Qt::ArrowCursor);
    const QImage onItem = hovered(columnOf(1));
    QCOMPARE(m_graph->cursor().shape(), Qt::PointingHandCursor);
    const QImage onPlace = hovered(place(Lane::Activities, 200));
    QCOMPARE(m_graph->cursor().shape(), Qt::CrossCursor);
    hovered(geometry().meals.header.center().toPoint());
    QCOMPARE(m_graph->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(onItem != nowhere && onPlace != nowhere);
}

void TestTrellumGraph::tipsTellTheFigures()
{
    const auto tip = [this](QPoint point) {
        QHelpEvent event(QEvent::ToolTip, point, m_graph->mapToGlobal(point));
        QApplication::sendEvent(m_graph.get(), &event);
        return QToolTip::text();
    };
    QCOMPARE(tip(columnOf(1)), QStringLiteral("Meal at 12:45\n780 kcal\nCarbohydrate: 340 kcal\n"
                                              "Fat: 260 kcal\nProtein: 180 kcal"));
    QCOMPARE(tip(blockOf(1)),
             QStringLiteral("Activity from 17:30 to 18:30\n480 kcal\n8.0 kcal per minute"));
    QCOMPARE(tip(place(Lane::Meals, 240)),
             QStringLiteral("New meal at 04:00\nBalance at that time: -300 kcal"));
    QCOMPARE(tip(geometry().activities.header.center().toPoint()), QStringLiteral("Open the list"));
    tip(geometry().timeAxis.center().toPoint());
    QTRY_COMPARE(QToolTip::text(), QString());
}

void TestTrellumGraph::twelveHourClock()
{
    const QImage before = m_graph->grab().toImage();
    m_graph->set24HourClock(false);
    m_graph->repaintChart();
    QVERIFY(m_graph->grab().toImage() != before);
}

void TestTrellumGraph::paperHasTheSizeOfTheFont()
{
    // The same area in inches at two resolutions: the same share of it is inked.
    QFont font = m_graph->font();
    font.setPointSizeF(9);
    m_graph->setFont(font);
    const auto inked = [this](int dotsPerInch) {
        QImage paper(8 * dotsPerInch, 5 * dotsPerInch, QImage::Format_RGB32);
        paper.setDotsPerMeterX(qRound(dotsPerInch / 0.0254));
        paper.setDotsPerMeterY(qRound(dotsPerInch / 0.0254));
        paper.fill(Qt::red);
        QPainter painter(&paper);
        m_graph->paintChart(painter, paper.rect(), QPalette(Qt::white, Qt::white));
        painter.end();
        double dark = 0;
        for (int y = 0; y < paper.height(); ++y) {
            for (int x = 0; x < paper.width(); ++x)
                dark += qGray(paper.pixel(x, y)) < 200;
        }
        return dark / paper.width() / paper.height();
    };
    const double coarse = inked(100);
    const double fine = inked(400);
    QVERIFY(coarse > 0.005);
    QVERIFY2(std::abs(fine / coarse - 1) < 0.35,
             qPrintable(QStringLiteral("%1 and %2").arg(coarse).arg(fine)));
}

void TestTrellumGraph::paintsFast()
{
    // Generous against a busy machine; it fails when painting costs per minute or per pixel.
    QElapsedTimer timer;
    timer.start();
    constexpr qint64 times = 10;
    for (qint64 i = 0; i < times; ++i) {
        fill(samples::crowdedDay(960));
        QVERIFY(!m_graph->grab().isNull());
    }
    QVERIFY2(timer.elapsed() < times * 100, qPrintable(QString::number(timer.elapsed())));
}

QTEST_MAIN(TestTrellumGraph)
#include "tst_trellumgraph.moc"
