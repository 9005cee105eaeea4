#include "chart/chartpainter.h"

#include "plot/drawing.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace daychart {

namespace {

// Of the balance ahead, in heights of a line of text.
constexpr double dashLength = 0.5;
constexpr double gapLength = 0.35;

class DayPainter : plot::Drawing
{
public:
    DayPainter(QPainter &painter, const DayGeometry &geometry, const DayColors &colors,
               const plot::Fonts &fonts)
        : Drawing(painter, geometry.unit, colors, fonts)
        , g(geometry)
        , c(colors)
    {
    }

    void paint(Medium medium)
    {
        p.fillRect(g.area, c.ground);
        paintGrid();
        paintBurn();
        paintMeals();
        paintAxes();
        paintNow(medium);
        // The ground of a text keeps what is behind from running through it, but not the balance:
        // a peak of it could lie there and nowhere else.
        const bool onScreen = medium == Medium::Screen;
        paintPlates(onScreen);
        paintBalance();
        for (const Swatch &swatch : g.swatches)
            paintSwatch(swatch);
        for (const auto &labels : {g.mealLabels, g.activityLabels}) {
            for (const ItemLabel &label : labels)
                text(label.text);
        }
        for (const PlacedText &placed : g.texts)
            text(placed);
        if (g.now && g.now->label)
            text(*g.now->label);
        for (const PlacedText &hint : onScreen ? g.hints : std::vector<PlacedText>())
            text(hint);
    }

private:
    using Drawing::horizontal;
    void horizontal(double y, const QColor &color) { horizontal(y, left(), right(), color); }
    double left() const { return g.time.left; }
    double right() const { return g.time.left + g.time.width; }

    void paintGrid();
    void paintBurn();
    void paintMeals();
    void paintAxes();
    void paintNow(Medium medium);
    void paintBalance();
    using Line = std::vector<QPointF>;
    void stroke(const Line &line, const QColor &color, double jump, double thick);
    void dash(const Line &line, const QColor &color, double jump, double thick);
    void paintPlates(bool withHints);
    void paintSwatch(const Swatch &swatch);
    void paintPart(Part part, const QRectF &rect);
    void paintCut(const QRectF &rect, double y);
    void plate(const QRectF &rect, QColor color);

    const DayGeometry &g;
    const DayColors &c;
};

void DayPainter::paintGrid()
{
    for (const double x : g.hourLines)
        vertical(x, g.meals.area.top(), g.activities.area.bottom(), c.grid);
    for (const LaneGeometry *lane : {&g.meals, &g.activities}) {
        for (const double y : lane->gridLines)
            horizontal(y, c.grid);
    }
}

void DayPainter::paintBurn()
{
    p.fillRect(g.band, c.band);
    if (g.band.height() > 0)
        horizontal(g.band.top(), c.bandEdge);
    for (const ActivityBlock &block : g.blocks) {
        QPainterPath outline;
        const auto &segments = block.segments;
        outline.moveTo(segments.front().bottomLeft());
        for (const QRectF &segment : segments) {
            p.fillRect(segment, block.negative ? c.ground : c.activity);
            outline.lineTo(segment.topLeft());
            outline.lineTo(segment.topRight());
        }
        for (auto segment = segments.rbegin(); segment != segments.rend(); ++segment) {
            outline.lineTo(segment->bottomRight());
            outline.lineTo(segment->bottomLeft());
        }
        outline.closeSubpath();
        p.strokePath(outline, pen(c.activityEdge));
        if (block.cut) {
            const QRectF &highest = *std::min_element(
                segments.begin(), segments.end(),
                [](const QRectF &a, const QRectF &b) { return a.top() < b.top(); });
            paintCut(highest, highest.top() + 0.25 * highest.height());
        }
    }
}

void DayPainter::paintMeals()
{
    for (const MealColumn &column : g.columns) {
        bool empty = true;
        for (const Nutrient n : stackedNutrients) {
            if (column.parts[n].height() > 0) {
                paintPart(partOf(n), column.parts[n]);
                empty = false;
            }
        }
        if (empty) {
            p.setPen(pen(c.axis));
            p.setBrush(c.stub);
            p.drawRect(column.rect);
            p.setBrush(Qt::NoBrush);
        }
        if (column.cut)
            paintCut(column.rect, column.rect.top() + 0.2 * column.rect.height());
    }
}

/// A slanted gap through a column that is higher than drawn.
void DayPainter::paintCut(const QRectF &rect, double y)
{
    const double slant = em(0.2);
    const double over = em(0.15);
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(pen(c.ground, 3));
    p.drawLine(QPointF(rect.left() - over, y + slant), QPointF(rect.right() + over, y - slant));
    p.setRenderHint(QPainter::Antialiasing, false);
}

void DayPainter::paintPart(Part part, const QRectF &rect)
{
    p.fillRect(rect, c.fill(part));
    if (part == partOf(Nutrient::Fat))
        hatch(rect, pen(c.fatHatch, 1.1));
    if (part == Part::Activity || part == Part::Background) {
        p.setPen(pen(part == Part::Activity ? c.activityEdge : c.bandEdge));
        p.drawRect(rect);
    } else if (rect.height() > 3 * hairline()) {
        // The parts of a column are parted by a line of the ground.
        horizontal(rect.top(), rect.left(), rect.right(), c.ground);
    }
}

void DayPainter::paintAxes()
{
    for (const double y : {g.meals.scale.zeroY, g.balanceZeroY, g.activities.scale.zeroY,
                           g.activities.area.bottom()})
        horizontal(y, c.axis);
    for (const double x : g.hourMarks)
        vertical(x, g.timeAxis.top(), g.timeAxis.top() + em(0.15), c.axis);
    for (const double x : g.hourLines)
        vertical(x, g.timeAxis.top(), g.timeAxis.top() + em(0.3), c.axis);
    for (const double y : g.balanceMarks)
        horizontal(y, right(), right() + em(0.2), c.axis);
}

/// With a seam, across the items; on paper, where the hints are left out, through their places.
void DayPainter::paintNow(Medium medium)
{
    if (!g.now)
        return;
    std::vector<QLineF> pieces = g.now->pieces;
    for (const PlacedText &hint : medium == Medium::Paper ? g.hints : std::vector<PlacedText>()) {
        if (hint.rect.left() < g.now->x && g.now->x < hint.rect.right())
            pieces.push_back({g.now->x, hint.rect.top(), g.now->x, hint.rect.bottom()});
    }
    QColor seam = c.ground;
    seam.setAlphaF(0.7F);
    for (const auto &[color, lines] : {std::pair(seam, 3.0), {c.now, 1.0}}) {
        for (const QLineF &piece : pieces)
            vertical(piece.x1(), piece.y1(), piece.y2(), color, lines);
    }
}

/// A line with a seam of the ground's colour, so that it stays legible across the items. The jumps
/// at meals are thin: the meal's column already says how large they are. What lies ahead is dashed.
void DayPainter::paintBalance()
{
    QColor seam = c.ground;
    seam.setAlphaF(0.7F);
    stroke(g.balance, seam, 3, 5);
    if (g.now) {
        const auto ahead =
            std::upper_bound(g.balance.begin(), g.balance.end(), g.now->x,
                             [](double x, const QPointF &corner) { return x < corner.x(); });
        Line before(g.balance.begin(), ahead);
        before.push_back(g.now->balance);
        Line after{g.now->balance};
        after.insert(after.end(), ahead, g.balance.end());
        stroke(before, c.balance, 1, 2.2);
        dash(after, c.balance, 1, 2.2);
    } else {
        stroke(g.balance, c.balance, 1, 2.2);
    }
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(Qt::NoPen);
    p.setBrush(c.balance);
    p.drawEllipse(g.balance.back(), em(0.2), em(0.2));
    p.drawRoundedRect(g.balanceEnd.rect, em(0.25), em(0.25));
    p.setBrush(Qt::NoBrush);
    p.setRenderHint(QPainter::Antialiasing, false);
    text(g.balanceEnd);
}

void DayPainter::stroke(const Line &line, const QColor &color, double jump, double thick)
{
    for (size_t i = 1; i < line.size(); ++i) {
        const QPointF &from = line[i - 1];
        const QPointF &to = line[i];
        if (to.x() - from.x() < 1e-6)
            vertical(to.x(), from.y(), to.y(), color, jump);
        else
            slope(from, to, color, thick);
    }
}

/// In dashes of one length, which run on around the corners.
void DayPainter::dash(const Line &line, const QColor &color, double jump, double thick)
{
    bool isDrawn = true;
    double left = em(dashLength); // of the dash or gap
    for (size_t i = 1; i < line.size(); ++i) {
        const QPointF from = line[i - 1];
        const QPointF way = line[i] - from;
        const double length = std::hypot(way.x(), way.y());
        for (double at = 0; at < length;) {
            const double end = std::min(length, at + left);
            if (isDrawn)
                stroke({from + way * (at / length), from + way * (end / length)}, color, jump,
                       thick);
            left -= end - at;
            at = end;
            if (at < length) {
                isDrawn = !isDrawn;
                left = em(isDrawn ? dashLength : gapLength);
            }
        }
    }
}

void DayPainter::paintPlates(bool withHints)
{
    if (g.now && g.now->label)
        plate(g.now->label->rect, c.ground);
    for (const auto &labels : {g.mealLabels, g.activityLabels}) {
        for (const auto &[item, text] : labels)
            plate(text.rect, text.tone == Tone::OnFill ? c.activity : c.ground);
    }
    for (const PlacedText &hint : withHints ? g.hints : std::vector<PlacedText>())
        plate(hint.rect, c.ground);
}

void DayPainter::paintSwatch(const Swatch &swatch)
{
    if (swatch.part != Part::Balance) {
        paintPart(swatch.part, swatch.rect);
        return;
    }
    const double y = swatch.rect.center().y();
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(pen(c.balance, 2));
    p.drawPolyline(QPolygonF({QPointF(swatch.rect.left(), y + em(0.2)),
                              QPointF(swatch.rect.center().x(), y + em(0.2)),
                              QPointF(swatch.rect.center().x(), y - em(0.15)),
                              QPointF(swatch.rect.right(), y + em(0.1))}));
    p.setRenderHint(QPainter::Antialiasing, false);
}

void DayPainter::plate(const QRectF &rect, QColor color)
{
    color.setAlphaF(0.8F);
    p.fillRect(rect, color);
}

} // namespace

void paintDayChart(QPainter &painter, const DayGeometry &geometry, const DayColors &colors,
                   const plot::Fonts &fonts, Medium medium)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setBrush(Qt::NoBrush);
    DayPainter(painter, geometry, colors, fonts).paint(medium);
    painter.restore();
}

} // namespace daychart
