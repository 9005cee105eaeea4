// What the painters of both charts draw with, on screens of any density.
#include "guitest.h"
#include "plot/chartwidget.h"
#include "plot/drawing.h"
#include "properties.h"

#include <QImage>
#include <QPainter>
#include <QTest>

#include <functional>

using namespace plot;

namespace {

constexpr double hairline = 2.2; // of the unit below

class Pencil : public Drawing
{
public:
    Pencil(QPainter &painter, const BaseColors &colors, const Fonts &fonts)
        : Drawing(painter, 40, colors, fonts)
    {
    }
    using Drawing::horizontal, Drawing::vertical, Drawing::slope, Drawing::hatch, Drawing::pen;
};

/// A white picture of 200 x 200, of so many dots to one, and what is drawn on it in black.
struct Drawn
{
    Drawn(double dots, const std::function<void(Pencil &)> &draw)
        : picture((QSizeF(200, 200) * dots).toSize(), QImage::Format_RGB32)
    {
        picture.fill(Qt::white);
        picture.setDevicePixelRatio(dots);
        QPainter painter(&picture);
        const BaseColors colors{QPalette()};
        const Fonts fonts(QFont(), 96, &picture);
        Pencil pencil(painter, colors, fonts);
        draw(pencil);
        painter.end();
        QRect inked;
        for (int i = 0; i < picture.width() * picture.height(); ++i) {
            const QPoint dot(i % picture.width(), i / picture.width());
            const int dark = 255 - qRed(picture.pixel(dot));
            darkest = std::max(darkest, dark);
            area += dark / (255.0 * dots * dots);
            if (dark > 0)
                inked |= QRect(dot, QSize(1, 1));
        }
        bounds = QRectF(QPointF(inked.topLeft()) / dots, QSizeF(inked.size()) / dots);
    }

    QImage picture;
    QRectF bounds; ///< of all that isn't white
    double area = 0;
    int darkest = 0;
};

class CountingChart : public ChartWidget
{
public:
    CountingChart()
        : ChartWidget(nullptr)
    {
    }
    using ChartWidget::relayout;
    int painted = 0;
    int forgotten = 0;

private:
    void forgetLayout() override { ++forgotten; }
    void computeLayout() override {}
    void paintPicture(QPainter &painter) override
    {
        ++painted;
        painter.fillRect(rect(), Qt::red);
    }
    void paintEmphasis(QPainter &) override {}
};

bool near(const QRectF &a, const QRectF &b, double tolerance)
{
    return ::near(a.left(), b.left(), tolerance) && ::near(a.top(), b.top(), tolerance) &&
           ::near(a.right(), b.right(), tolerance) && ::near(a.bottom(), b.bottom(), tolerance);
}

} // namespace

class tst_drawing : public QObject
{
    Q_OBJECT
private slots:
    void sharpLines_data() { densities(); }
    void sharpLines();
    void slopes_data() { densities(); }
    void slopes();
    void hatching_data() { densities(); }
    void hatching();
    void colorsKeepTheirDistance();
    void standsOutFromAnyGround();
    void picturesAreKept();

private:
    void densities()
    {
        QTest::addColumn<double>("dots");
        for (const double dots : {1.0, 1.5, 2.0, 3.0})
            QTest::addRow("%g", dots) << dots;
    }
};

void tst_drawing::sharpLines()
{
    QFETCH(double, dots);
    const double thick = std::round(hairline * dots) / dots;
    const Drawn level(dots, [](Pencil &p) { p.horizontal(50, 20, 120, Qt::black); });
    QVERIFY(near(level.bounds, QRectF(20, 50 - thick / 2, 100, thick), 1 / dots));
    QVERIFY(::near(level.area, 100 * thick) && ::near(level.bounds.height(), thick));
    // A translucent one is nowhere darker than its colour, however long.
    const double tripled = std::round(3 * hairline * dots) / dots;
    const Drawn upright(dots,
                        [](Pencil &p) { p.vertical(70.3, 190, 10, QColor(0, 0, 0, 100), 3); });
    QVERIFY(near(upright.bounds, QRectF(70.3 - tripled / 2, 10, tripled, 180), 1 / dots));
    QCOMPARE(upright.darkest, 100);
    QVERIFY(::near(upright.area, 180 * tripled * 100 / 255));
}

void tst_drawing::slopes()
{
    QFETCH(double, dots);
    for (const auto &[from, to] : {std::pair(QPointF(20, 30.4), QPointF(171.3, 110)),
                                   {QPointF(20, 171), QPointF(60, 12)},
                                   {QPointF(90.2, 90), QPointF(91, 91)}}) {
        const Drawn line(dots, [from = from, to = to](Pencil &p) {
            p.slope(from, to, QColor(0, 0, 0, 180), 2);
        });
        const double length = QLineF(from, to).length();
        QVERIFY(::near(line.area, length * 2 * hairline * 180 / 255, 0.03 * length + 1));
        const double half = 3 * hairline;
        QVERIFY(
            QRectF(from, to).normalized().adjusted(-half, -half, half, half).contains(line.bounds));
        QVERIFY(line.darkest >= 150 && line.darkest <= 181);
    }
    QCOMPARE(Drawn(dots, [](Pencil &p) { p.slope({5, 5}, {5, 5}, Qt::black, 2); }).area, 0.0);
}

void tst_drawing::hatching()
{
    QFETCH(double, dots);
    const QRectF whole(20, 15, 60, 170);
    const Drawn once(dots, [&](Pencil &p) { p.hatch(whole, p.pen(Qt::black)); });
    const Drawn twice(dots, [&](Pencil &p) {
        p.hatch({20, 15, 60, 100}, p.pen(Qt::black));
        p.hatch({20, 115, 60, 70}, p.pen(Qt::black));
    });
    QCOMPARE(once.picture, twice.picture);
    QVERIFY(near(once.bounds, whole, 1 / dots));
    const double distance = 0.3 * 40 / std::sqrt(2);
    QVERIFY(::near(once.area / (whole.width() * whole.height()), hairline / distance, 0.03));
}

void tst_drawing::colorsKeepTheirDistance()
{
    for (const bool dark : {false, true}) {
        QPalette palette;
        palette.setColor(QPalette::Base, dark ? QColor(0x202326) : QColor(Qt::white));
        palette.setColor(QPalette::Text, dark ? QColor(0xf0f0f0) : QColor(Qt::black));
        const BaseColors c(palette);
        QCOMPARE(c.isDark, dark);
        QVERIFY(contrast(c.tone(Tone::OnInk), c.ink) > 12 && c.tone(Tone::OnFill) == c.ink);
        QVERIFY(contrast(c.axis, c.ground) > contrast(c.grid, c.ground) + 0.5);
        QVERIFY(contrast(c.grid, c.ground) > 1.1 && contrast(c.grid, c.ground) < 2);
    }
}

// Known ratios, and every grey as the ground.
void tst_drawing::standsOutFromAnyGround()
{
    QCOMPARE(contrast(Qt::white, Qt::black), 21.0);
    QVERIFY(::near(contrast(Qt::white, QColor(0x767676)), 4.54, 0.005));
    QVERIFY(::near(contrast(Qt::red, Qt::white), 4.0, 0.005));
    for (int grey = 0; grey < 256; ++grey) {
        const QColor ground(grey, grey, grey);
        for (const QColor &color : {QColor(0xEDB550), QColor(0x2B628F), ground}) {
            const QColor found = standingOut(color, ground, legible);
            QVERIFY(contrast(found, ground) >= legible);
            QVERIFY(contrast(color, ground) < legible || found == color);
        }
    }
    QCOMPARE(standingOut(Qt::gray, QColor(0x777777), 21), QColor(Qt::black));
}

void tst_drawing::picturesAreKept()
{
    CountingChart chart;
    chart.resize(100, 50);
    chart.show();
    QVERIFY(QTest::qWaitForWindowExposed(&chart));
    chart.relayout();
    chart.painted = 0;
    for (const int painted : {1, 2, 2, 2}) { // straight away, into a picture, from it
        QCOMPARE(chart.grab().toImage().pixelColor(50, 25), QColor(Qt::red));
        QCOMPARE(chart.painted, painted);
    }
    const int before = chart.forgotten;
    chart.relayout();
    chart.resize(120, 50);
    chart.grab();
    QCOMPARE(chart.painted, 3); // once for all that has changed
    QVERIFY(chart.forgotten > before);
    QFont larger = chart.font();
    larger.setPointSize(20);
    chart.setFont(larger);
    chart.grab();
    QCOMPARE(chart.painted, 4);
}

QTEST_MAIN(tst_drawing)
#include "tst_drawing.moc"
