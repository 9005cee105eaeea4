// The daily chart under mouse, keyboard and assistive technology.
#include "chart/TrellumGraph.h"
#include "chart/daylayout.h"
#include "chart/hittest.h"
#include "guitest.h"
#include "samples.h"

#include <QAccessible>
#include <QHelpEvent>
#include <QPainter>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextDocument>
#include <QToolTip>
#include <QtMath>

using namespace daychart;
using namespace Qt::Literals;

class tst_trellumgraph : public QObject
{
    Q_OBJECT

    std::unique_ptr<TrellumGraph> m_graph;
    QStringList m_raised;

    /// What was raised since the last call, as words.
    QStringList raised() { return std::exchange(m_raised, {}); }
    void fill(const DayData &day)
    {
        m_graph->clear();
        m_graph->setBackgroundRate(day.backgroundRate);
        day.forEachMeal(
            [this](const MealItem &m) { m_graph->addMeal(m.id, m.time, m.byNutrient, m.words); });
        day.forEachActivity([this](const ActivityItem &a) {
            m_graph->addActivity(a.id, a.begin, a.end, a.calories, a.words);
        });
        m_graph->repaintChart();
    }
    /// The geometry that the control must have for a day, computed anew.
    DayGeometry geometry(const DayData &day = samples::typicalDay()) const
    {
        const plot::Fonts fonts(m_graph->font(), m_graph->logicalDpiY(), m_graph.get());
        return dayGeometry(day, m_graph->rect(), plot::metricsOf(fonts, m_graph.get()),
                           ChartTexts(QLocale::c(), true));
    }
    QPoint columnOf(size_t item) const { return geometry().columns[item].rect.center().toPoint(); }
    QPoint place(Lane lane, int minute) const
    {
        const DayGeometry g = geometry();
        const QRectF &area = lane == Lane::Meals ? g.meals.area : g.band;
        return {qRound(g.time.x(minute)), qRound(area.center().y())};
    }
    QAccessibleInterface *chart() const
    {
        return QAccessible::queryAccessibleInterface(m_graph.get());
    }
    QString tipAt(QPoint point)
    {
        QHelpEvent event(QEvent::ToolTip, point, m_graph->mapToGlobal(point));
        QApplication::sendEvent(m_graph.get(), &event);
        return QToolTip::text();
    }
    QImage picture()
    {
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(m_graph.get(), &leave);
        return m_graph->grab().toImage();
    }
    QString name(int child) const { return chart()->child(child)->text(QAccessible::Name); }

private slots:
    void init()
    {
        QAccessible::setActive(true);
        QTest::failOnWarning(QRegularExpression(u"QPainter"_s));
        m_graph = std::make_unique<TrellumGraph>();
        m_graph->setLocale(QLocale::c());
        m_graph->resize(1000, 650);
        setTestFont(*m_graph);
        const auto item = [this](const QString &lane) {
            return [this, lane](int id, bool hit, QTime time) {
                m_raised << lane.arg(id).arg(hit) + time.toString(" HH:mm"_L1);
            };
        };
        const auto place = [this](const QString &lane) {
            return [this, lane](QTime time) { m_raised << time.toString(lane); };
        };
        connect(m_graph.get(), &TrellumGraph::mealItemChosen, this, item(u"meal %1 %2"_s));
        connect(m_graph.get(), &TrellumGraph::activityItemChosen, this, item(u"activity %1 %2"_s));
        connect(m_graph.get(), &TrellumGraph::freeMealPlaceChosen, this,
                place(u"'new meal' HH:mm"_s));
        connect(m_graph.get(), &TrellumGraph::freeActivityPlaceChosen, this,
                place(u"'new activity' HH:mm"_s));
        fill(samples::typicalDay());
        m_graph->show();
        m_graph->setFocus();
        activate(*m_graph);
        m_raised.clear();
    }
    void cleanup() { m_graph.reset(); }

    void clicks()
    {
        const DayGeometry g = geometry();
        const std::vector<std::pair<QPoint, QString>> clicks = {
            {g.meals.header.center().toPoint(), u"meal 0 0"_s}, // a caption has no time
            {columnOf(2), u"meal 13 1 19:15"_s},
            {place(Lane::Activities, 14 * 60 + 30), u"new activity 14:30"_s},
            {place(Lane::Meals, 4 * 60), u"new meal 04:00"_s},
            {g.activities.figure.center().toPoint(), u"activity 0 0"_s},
            {g.meals.area.topRight().toPoint() + QPoint(-1, 2), u"new meal 23:59"_s},
            {g.timeAxis.center().toPoint(), QString()},
        };
        for (const auto &[point, expected] : clicks) {
            QTest::mouseClick(m_graph.get(), Qt::LeftButton, {}, point);
            QCOMPARE(raised().join(u','), expected);
        }
        const auto drag = [this](QPoint from, QPoint to) {
            QTest::mousePress(m_graph.get(), Qt::LeftButton, {}, from);
            QTest::mouseRelease(m_graph.get(), Qt::LeftButton, {}, to);
        };
        drag(columnOf(0), columnOf(1));
        QCOMPARE(raised(), QStringList()); // not where it was pressed
        drag(columnOf(0), columnOf(0) + QPoint(2, 30));
        QCOMPARE(raised().size(), 1);
    }
    void keyboard_data()
    {
        QTest::addColumn<QList<QKeyCombination>>("keys");
        QTest::addColumn<QString>("chosen"); // by Enter behind the keys
        using Keys = QList<QKeyCombination>;
        const QKeyCombination later = Qt::SHIFT | Qt::Key_Right;
        const QKeyCombination minute = Qt::CTRL | Qt::SHIFT | Qt::Key_Right;
        const Qt::Key right = Qt::Key_Right, down = Qt::Key_Down;
        QTest::newRow("caption first") << Keys{} << "meal 0 0";
        QTest::newRow("items by time") << Keys{right, right} << "meal 12 1 12:45";
        QTest::newRow("last one") << Keys{Qt::Key_End, right, Qt::Key_Left} << "meal 13 1 19:15";
        QTest::newRow("nearest item, no further lane")
            << Keys{right, down, down} << "activity 21 1 08:00";
        QTest::newRow("one minute") << Keys{minute} << "new meal 12:01";
        QTest::newRow("onto the grid") << Keys{minute, later} << "new meal 12:05";
        QTest::newRow("an hour") << Keys{down, Qt::Key_PageDown} << "new activity 13:00";
        QTest::newRow("last minute") << Keys(20, Qt::Key_PageDown) << "new meal 23:59";
    }
    void keyboard()
    {
        DayData unordered = samples::typicalDay();
        std::swap(unordered.meals[0], unordered.meals[2]);
        fill(unordered);
        QFETCH(QList<QKeyCombination>, keys);
        for (const QKeyCombination key : keys)
            QTest::keyClick(m_graph.get(), key.key(), key.keyboardModifiers());
        QTest::keyClick(m_graph.get(), Qt::Key_Return);
        QTEST(raised().join(u','), "chosen");
    }
    void keyboardKeepsItsItem()
    {
        QTest::keyClick(m_graph.get(), Qt::Key_Right);
        DayData day = samples::typicalDay();
        std::swap(day.meals[0], day.meals[2]);
        fill(day);
        QTest::keyClick(m_graph.get(), Qt::Key_Space);
        fill(DayData());
        QTest::keyClick(m_graph.get(), Qt::Key_Enter);
        QCOMPARE(raised(), (QStringList{"meal 11 1 07:30", "meal 0 0"}));
    }
    void doubleClickOpensOneDialogAndPressesNothingInIt()
    {
        QPushButton dialog;
        int pressed = 0;
        connect(&dialog, &QPushButton::clicked, this, [&] { ++pressed; });
        connect(m_graph.get(), &TrellumGraph::mealItemChosen, this, [&] {
            fill(DayData()); // as an answer may
            dialog.resize(200, 200);
            dialog.move(m_graph->mapToGlobal(columnOf(2)) - QPoint(100, 100));
            dialog.show();
            QTest::mouseClick(&dialog, Qt::LeftButton); // in its middle
            QCOMPARE(pressed, 0);
            QTest::mouseClick(&dialog, Qt::LeftButton, {}, {20, 20});
            QCOMPARE(pressed, 1);
        });
        QTest::mouseClick(m_graph.get(), Qt::LeftButton, {}, columnOf(2));
        QTest::mouseDClick(m_graph.get(), Qt::LeftButton, {}, columnOf(2));
        QCOMPARE(raised(), QStringList("meal 13 1 19:15"));
        QTest::mouseClick(&dialog, Qt::LeftButton);
        QCOMPARE(pressed, 2);
    }
    void nothingHidesTheBalance()
    {
        const DayData day = {0.1, {{11, QTime(12, 0), {100, 300, 100}}}}; // its label at the peak
        fill(day);
        const QImage image = m_graph->grab().toImage();
        const QColor line = DayColors(m_graph->palette()).balance;
        for (const QPointF corner : geometry(day).balance) {
            bool isSeen = false;
            for (int i = 0; i < 25; ++i)
                isSeen |= image.pixelColor(corner.toPoint() + QPoint(i % 5 - 2, i / 5 - 2)) == line;
            QVERIFY2(isSeen, qPrintable(QString::number(corner.x())));
        }
    }
    void paintsWhatIsLaidOut()
    {
        DayData day = samples::typicalDay();
        day.meals.insert(day.meals.end(), {{14, QTime(3, 0), {}}, // and one that is cut off
                                           {15, QTime(23, 0), {9000, 15000, 9000}}});
        day.activities.insert(day.activities.end(), {{23, QTime(2, 0), QTime(4, 0), -60},
                                                     {24, QTime(8, 15), QTime(9, 30), 300},
                                                     {25, QTime(21, 0), QTime(22, 30), 80000}});
        fill(day);
        const DayGeometry g = geometry(day);
        const DayColors c(m_graph->palette());
        const QImage image = picture();
        const auto share = [&](const QRectF &rect, const QColor &color) {
            return ::share(image, rect, color);
        };
        const auto cutOf = [&](const QRectF &rect, double down) {
            return QRectF(rect.left(), rect.top() + down * rect.height() - 0.3 * g.unit,
                          rect.width(), 0.6 * g.unit);
        };
        const auto row = [&](double y, const QRectF &along) {
            return QRectF(along.left(), std::round(y) - 1, along.width(), 1.5);
        };
        for (const MealColumn &column : g.columns) {
            for (const Nutrient n : allNutrients) {
                const QRectF inner = column.parts[n].adjusted(1, 2, -2, -2);
                QVERIFY(inner.height() < 2 || share(inner, c.nutrients[n]) > 0.2);
                QVERIFY(n != Nutrient::Fat || inner.height() < 9 ||
                        share(inner, c.nutrients[n]) < 0.9);
            }
            QVERIFY(!column.cut || share(cutOf(column.rect, 0.2), c.ground) > 0.1);
        }
        QVERIFY(share(g.columns[3].rect, c.stub) > 0.05);
        QVERIFY(share(row(g.columns[3].rect.top(), g.columns[3].rect), c.axis) > 0.4);
        for (const ActivityBlock &block : g.blocks) {
            for (const QRectF &segment : block.segments) {
                QVERIFY(share(segment.adjusted(2, 2, -2, -2),
                              block.negative ? c.ground : c.activity) > 0.2);
                for (const double y : {segment.top(), segment.bottom()})
                    QVERIFY(block.segments.size() > 1 ||
                            share(row(y, segment), c.activityEdge) > 0.1);
            }
            for (const double x : {block.bounds.left(), block.bounds.right()})
                QVERIFY(share({x - 1, block.bounds.top(), 1.5, block.bounds.height()},
                              c.activityEdge) > 0.1);
            QVERIFY(!block.cut || share(cutOf(block.bounds, 0.25), c.ground) > 0.1);
        }
        for (const LaneGeometry *lane : {&g.meals, &g.activities}) {
            QVERIFY(share(row(lane->scale.zeroY, lane->area), c.axis) > 0.03);
            for (const double y : lane->gridLines)
                QVERIFY(y == lane->scale.zeroY || share(row(y, lane->area), c.grid) > 0.1);
        }
        for (const double x : g.hourLines)
            QVERIFY(share({x - 1, g.meals.area.top(), 1.5, g.meals.area.height()}, c.grid) > 0.2);
        for (const double x : g.hourMarks)
            QVERIFY(share({x - 1, g.timeAxis.top() + 1, 1.5, 1}, c.axis) > 0.3);
        QVERIFY(share(g.band, c.band) > 0.5 && share(row(g.band.top(), g.band), c.bandEdge) > 0.3);
        QVERIFY(share(g.balanceEnd.rect, c.balance) > 0.4 && share(g.area, c.ground) > 0.5);
        for (const Swatch &swatch : g.swatches)
            QVERIFY(share(swatch.rect, c.fill(swatch.part)) > 0.02);
        for (const PlacedText &text : g.texts)
            QVERIFY(share(text.rect, c.ground) < 0.98);
    }
    void emphasisTellsWhatIsPointedAt()
    {
        const DayGeometry g = geometry();
        const QColor highlight = DayColors(m_graph->palette()).highlight;
        const QImage before = picture();
        const QRectF lane = g.activities.area;
        for (const auto &[point, bounds] :
             {std::pair(columnOf(1), g.columns[1].rect),
              {g.blocks[1].bounds.center().toPoint(), g.blocks[1].bounds},
              {g.meals.header.center().toPoint(), g.meals.header},
              {place(Lane::Activities, 700),
               QRectF(g.time.x(700) - 60, lane.top(), 120, lane.height() + 2 * g.unit)}}) {
            QTest::mouseMove(m_graph.get(), point);
            const QImage after = m_graph->grab().toImage();
            QRect changed;
            bool isHighlighted = false;
            for (int i = 0; i < before.width() * before.height(); ++i) {
                const QPoint dot(i % before.width(), i / before.width());
                if (before.pixel(dot) != after.pixel(dot))
                    changed |= QRect(dot, QSize(1, 1));
                isHighlighted |= after.pixelColor(dot) == highlight;
            }
            QVERIFY(isHighlighted == (bounds != g.meals.header) && changed.contains(point));
            QVERIFY(bounds.adjusted(-4, -4, 4, 4).contains(changed));
            QVERIFY(changed.height() > bounds.height() - 12);
        }
    }
    void selectionStandsOutForAWhile()
    {
        const DayGeometry g = geometry();
        const QColor highlight = DayColors(m_graph->palette()).highlight;
        const auto standsOut = [&] {
            const QImage image = m_graph->grab().toImage();
            const auto around = [&](const QRectF &rect) {
                return share(image, rect.adjusted(-4, -4, 4, 4), highlight) > 0;
            };
            return std::vector{around(g.columns[0].rect), around(g.columns[1].rect),
                               around(g.columns[2].rect), around(g.blocks[0].bounds),
                               around(g.blocks[1].bounds)};
        };
        const auto selected = [&] {
            QString names;
            for (int i = 0; i < chart()->childCount(); ++i)
                names += chart()->child(i)->state().selected ? name(i).section(u',', 0, 0) : u""_s;
            return names;
        };
        const std::vector chosen{true, false, true, false, true};
        const std::vector none(5, false);
        const QString names = u"Meal at 07:30Meal at 19:15Activity from 17:30 to 18:30"_s;
        const std::function<void()> ends[] = {
            [&] { QTest::keyClick(m_graph.get(), Qt::Key_Shift); },
            [&] {
                QTest::mouseClick(m_graph.get(), Qt::RightButton, {}, {1, 1});
            },
            [&] { fill(samples::typicalDay()); }};
        for (const auto &end : ends) {
            m_graph->select({13, 11, 21, 999}, {22});
            QCOMPARE(standsOut(), chosen);
            QCOMPARE(selected(), names);
            m_graph->repaintChart(); // as in another size
            QCOMPARE(standsOut(), chosen);
            end();
            m_graph->clearFocus(); // with which the keyboard's place stands out
            QCOMPARE(standsOut(), none);
            m_graph->setFocus();
        }
        m_graph->select({13}, {});
        QTest::keyClick(m_graph.get(), Qt::Key_Left);
        QTest::keyClick(m_graph.get(), Qt::Key_Return);
        QCOMPARE(raised(), QStringList("meal 12 1 12:45")); // from there on
    }
    void tooManyItemsAreCountedButNotDrawn()
    {
        DayData day = {1, {}, {}};
        for (int i = 0; i < 20000; ++i) // without a bound, minutes
            day.add(MealItem{i, timeOf(i % 1440), {2, 1, 3}});
        for (int i = 0; i < 501; ++i)
            day.add(ActivityItem{i, timeOf(i), timeOf(i + i % 40), 2});
        fill(day);
        m_graph->grab();
        QCOMPARE(chart()->childCount(), 2 * (1 + 500 + 1));
        QVERIFY(
            chart()
                ->text(QAccessible::Description)
                .endsWith(u"Meals: 20000. Activities: 501. Drawn: the first 500 of 20000 meals. "
                          u"The totals count "
                          "all. Drawn: the first 500 of 501 activities. The totals count all."_s));
    }
    void pointerAndTipsTellWhatAClickDoes()
    {
        QTest::mouseMove(m_graph.get(), place(Lane::Meals, 240));
        QCOMPARE(m_graph->cursor().shape(), Qt::CrossCursor);
        QTest::mouseMove(m_graph.get(), columnOf(1));
        QCOMPARE(m_graph->cursor().shape(), Qt::PointingHandCursor);
        QTRY_COMPARE(tipAt(columnOf(1)), u"Meal at 12:45\n780 kcal\nCarbohydrate: 340 kcal\n"
                                         "Fat: 260 kcal\nProtein: 180 kcal"_s);
    }
    void itemsAreNamed()
    {
        DayData day = samples::typicalDay();
        day.meals[1].words = {u"<b>Ham</b> & eggs %1"_s, u"1,5 × 100 g"_s};
        day.meals[2].words.name = u"Soup"_s;
        day.activities[1].words = {u"Walking"_s, u"60 minute"_s};
        fill(day);
        // As they are written, and where no other text stands before them.
        QTRY_COMPARE(tipAt(columnOf(1)),
                     u"Meal at 12:45\n<b>Ham</b> & eggs %1, 1,5 × 100 g\n780 kcal\n"
                     "Carbohydrate: 340 kcal\nFat: 260 kcal\nProtein: 180 kcal"_s);
        QVERIFY(!Qt::mightBeRichText(QToolTip::text()));
        QTRY_VERIFY(tipAt(columnOf(2)).startsWith(u"Meal at 19:15\nSoup\n750 kcal\n"_s));
        QTRY_COMPARE(tipAt(geometry().blocks[1].bounds.center().toPoint()),
                     u"Activity from 17:30 to 18:30\nWalking, 60 minute\n480 kcal\n"
                     "8.0 kcal per minute"_s);
        QCOMPARE(name(2), u"Meal at 12:45, 780 kcal: carbohydrate 340, fat 260, protein 180. "
                          "<b>Ham</b> & eggs %1, 1,5 × 100 g"_s);
        QCOMPARE(name(7), u"Activity from 17:30 to 18:30, 480 kcal. Walking, 60 minute"_s);
    }
    void presentMinuteIsMarked()
    {
        DayData day = {0.5, {{11, QTime(6, 0), {10, 30, 10}}}};
        fill(day);
        const QImage before = picture();
        const QString summary = chart()->text(QAccessible::Description);
        const QAccessibleInterface *meal = chart()->child(1);
        m_graph->setNow(QTime(13, 0, 59));
        QCOMPARE(chart()->text(QAccessible::Description),
                 summary + u" So far, at 13:00, 340 kcal less eaten than burnt."_s);
        QCOMPARE(chart()->child(1), meal); // not one more item that is new to a screen reader

        day.now = 780;
        const DayGeometry g = geometry(day);
        const DayColors c(m_graph->palette());
        const QRectF atNow(g.time.x(780) - 1, g.meals.area.top(), 2.5, 0.5 * g.meals.area.height());
        // How much of a part of the balance is seen as a line between two minutes.
        const auto drawn = [&](const QImage &image, size_t corner, double from, double to) {
            const QLineF line(g.balance[corner], g.balance[corner + 1]);
            const int first = qCeil(g.time.x(from));
            const int last = qFloor(g.time.x(to));
            int seen = 0;
            for (int x = first; x < last; ++x) {
                const QPoint middle = line.pointAt((x - line.x1()) / line.dx()).toPoint();
                bool isSeen = false;
                for (int i = -1; i <= 1; ++i)
                    isSeen |= image.pixelColor(middle + QPoint(0, i)) == c.balance;
                seen += isSeen;
            }
            return double(seen) / (last - first);
        };
        QImage paper(m_graph->size(), QImage::Format_RGB32);
        QPainter painter(&paper);
        m_graph->paintChart(painter, paper.rect(), m_graph->palette());
        painter.end();
        for (const QImage &image : {picture(), paper}) {
            QVERIFY(share(image, atNow, c.now) > 0.2);
            QVERIFY(share(image, g.now->label->rect, c.ground) < 0.95);
            QVERIFY(drawn(image, 2, 380, 770) > 0.95);
            const double ahead = drawn(image, 2, 790, 1430);
            QVERIFY2(ahead > 0.4 && ahead < 0.7, qPrintable(QString::number(ahead)));
        }
        m_graph->setNow(QTime(6, 0)); // at the meal
        QVERIFY(drawn(picture(), 0, 10, 350) > 0.95);
        QVERIFY(drawn(picture(), 2, 380, 1430) < 0.7);
        m_graph->setNow(QTime(13, 0));
        fill(day); // of the same day
        QVERIFY(share(picture(), atNow, c.now) > 0.2);
        m_graph->setNow(QTime());
        QCOMPARE(picture(), before);
        QCOMPARE(chart()->text(QAccessible::Description), summary);
    }
    void screenReaderIsToldTheFiguresAndPresses()
    {
        QCOMPARE(chart()->text(QAccessible::Description),
                 u"Eaten 1960 kcal, burnt 2400 kcal of which 600 kcal by activities, "
                 "balance 440 kcal less eaten than burnt. Meals: 3. Activities: 2."_s);
        for (const auto &[child, expected] : QList<std::pair<int, QString>>{
                 {1, u"Meal at 07:30, 430 kcal: carbohydrate 260, fat 110, protein 60"_s},
                 {5, u"Activities: open the list"_s},
                 {6, u"Activity from 08:00 to 08:30, 120 kcal"_s}}) {
            QCOMPARE(name(child), expected);
            const QPoint middle = chart()->child(child)->rect().center();
            QCOMPARE(chart()->childAt(middle.x(), middle.y()), chart()->child(child));
        }
        m_graph->set24HourClock(false);
        QVERIFY(name(1).startsWith(u"Meal at 7:30 am"_s));
        chart()->child(2)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        QCOMPARE(raised(), QStringList("meal 12 1 12:45"));
        QCOMPARE(chart()->focusChild(), chart()->child(2));
        fill({});
        QVERIFY(!chart()->child(-1) && !chart()->child(chart()->childCount()));
    }
};

QTEST_MAIN(tst_trellumgraph)
#include "tst_trellumgraph.moc"
