#include "progress/progresspainter.h"

#include "plot/drawing.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace progress {

namespace {

class ProgressPainter : plot::Drawing
{
public:
    ProgressPainter(QPainter &painter, const ProgressGeometry &geometry,
                    const ProgressColors &colors, const plot::Fonts &fonts)
        : Drawing(painter, geometry.unit, colors, fonts)
        , g(geometry)
        , c(colors)
    {
    }

    void paint();
    void paintMark(const Mark &mark, Series series, double larger = 1);
    void paintNote(const NoteSpan &note, const QColor &fill, const QColor &edge, const QColor &ink);

private:
    // Round at the joints of its lines.
    QPen pen(const QColor &color, double lines = 1, Qt::PenStyle style = Qt::SolidLine) const
    {
        QPen round = Drawing::pen(color, lines, style);
        round.setJoinStyle(Qt::RoundJoin);
        return round;
    }
    QPen averagePen() const { return pen(c.ink, 1, Qt::DashLine); }
    QPen bridgePen(Series series) const
    {
        QPen bridge = pen(c.line(series), 1.4);
        bridge.setDashPattern({1, 2});
        return bridge;
    }
    QPen targetPen(Series series) const
    {
        QPen target = pen(c.line(series), 1.2);
        target.setDashPattern({7, 2, 1.5, 2});
        return target;
    }
    QPen trendPen() const
    {
        QPen trend = pen(c.trend, 2);
        trend.setDashPattern({5, 2.5});
        return trend;
    }
    using Drawing::horizontal;
    void horizontal(double y, const QColor &color)
    {
        horizontal(y, g.plot.left(), g.plot.right(), color);
    }
    double markRadius() const { return std::clamp(0.42 * g.days.dayWidth, em(0.11), em(0.26)); }

    void paintFrame();
    void paintLane(const ProgressLane &lane);
    void paintColumns();
    void paintLine(const SeriesLine &line);
    void paintTrend();
    void paintBeyond(const Mark &mark, double radius);
    void paintSample(const LegendEntry &entry);
    void paintStrip(const QRectF &rect);

    const ProgressGeometry &g;
    const ProgressColors &c;
};

/// A shape of its own for each line.
QPainterPath shapeOf(Series series, QPointF at, double radius)
{
    QPainterPath path;
    switch (series) {
    case Series::Weight:
    case Series::Breast:
        path.addEllipse(at, radius, radius);
        break;
    case Series::Waist:
        path.addRect(at.x() - 0.9 * radius, at.y() - 0.9 * radius, 1.8 * radius, 1.8 * radius);
        break;
    case Series::Hips:
        path.addPolygon(
            QPolygonF({at + QPointF(0, -1.25 * radius), at + QPointF(1.15 * radius, 0.8 * radius),
                       at + QPointF(-1.15 * radius, 0.8 * radius)}));
        path.closeSubpath();
        break;
    }
    return path;
}

void ProgressPainter::paint()
{
    p.fillRect(g.area, c.ground);
    p.setRenderHint(QPainter::Antialiasing, false);
    for (const NoteSpan &note : g.notes)
        p.fillRect(note.reach, c.noteReach);
    paintFrame();
    if (!g.isEmpty) {
        for (const ProgressLane *lane : {&g.weight, &g.girths, &g.balance})
            paintLane(*lane);
        paintColumns();
    }
    for (const TargetLine &target : g.targets) {
        p.setPen(targetPen(target.series));
        p.drawLine(target.line);
    }
    for (const SeriesLine &line : g.lines)
        paintLine(line);
    paintTrend();
    for (const NoteSpan &note : g.notes)
        paintNote(note, c.note, c.noteEdge, c.ink);
    for (const LegendEntry &entry : g.legend)
        paintSample(entry);
    for (const PlacedText &placed : g.texts)
        text(placed);
    for (const SeriesLine &line : g.lines)
        text(line.label);
    for (const BalanceColumn &column : g.columns)
        text(column.value);
}

void ProgressPainter::paintFrame()
{
    horizontal(g.plot.bottom(), c.axis);
    for (const double x : g.weekLines)
        vertical(x, g.plot.bottom(), g.plot.bottom() + em(0.25), c.axis);
    // Not through the days' numbers.
    for (const double x : g.monthLines)
        vertical(x, g.plot.bottom() + em(1.25), g.plot.bottom() + em(2.2), c.axis);
}

void ProgressPainter::paintLane(const ProgressLane &lane)
{
    const auto verticals = [&](const std::vector<double> &places, const QColor &color) {
        for (const double x : places)
            vertical(x, lane.area.top(), lane.area.bottom(), color);
    };
    verticals(g.weekLines, c.grid);
    for (const double y : lane.grid)
        horizontal(y, c.grid);
    verticals(g.monthLines, c.month);
}

void ProgressPainter::paintColumns()
{
    for (const QRectF &strip : g.notRecorded)
        paintStrip(strip);
    for (const BalanceColumn &column : g.columns) {
        // Narrow columns keep their distance by their exact edges, not by whole pixels.
        p.setRenderHint(QPainter::Antialiasing, true);
        p.fillRect(column.rect, column.isSurplus ? c.surplus : c.deficit);
    }
    p.setRenderHint(QPainter::Antialiasing, false);
    horizontal(g.balance.scale.y(0), c.axis);
    if (g.hasAverage) {
        p.setPen(averagePen());
        p.drawLines(g.averageLine.data(), int(g.averageLine.size()));
    }
}

/// Days without figures.
void ProgressPainter::paintStrip(const QRectF &rect)
{
    p.fillRect(rect, c.ground);
    hatch(rect, pen(c.muted));
}

void ProgressPainter::paintLine(const SeriesLine &line)
{
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(pen(c.line(line.series), 2));
    p.drawLines(QList<QLineF>(line.measured.begin(), line.measured.end()));
    p.setPen(bridgePen(line.series));
    p.drawLines(QList<QLineF>(line.bridges.begin(), line.bridges.end()));
    for (const Mark &mark : line.marks)
        paintMark(mark, line.series);
    p.setRenderHint(QPainter::Antialiasing, false);
}

void ProgressPainter::paintTrend()
{
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(trendPen());
    for (const TrendLine &line : g.trend)
        p.drawPolyline(line.data(), int(line.size()));
    p.setRenderHint(QPainter::Antialiasing, false);
}

void ProgressPainter::paintMark(const Mark &mark, Series series, double larger)
{
    const double radius = larger * markRadius();
    if (mark.kind == Mark::Kind::AboveScale || mark.kind == Mark::Kind::BelowScale) {
        paintBeyond(mark, radius);
        return;
    }
    const bool isMeasured = mark.kind == Mark::Kind::Measured;
    p.setPen(pen(c.line(series), 1.4));
    p.setBrush(isMeasured ? c.line(series) : c.ground);
    p.drawPath(shapeOf(series, mark.at, radius));
    p.setBrush(Qt::NoBrush);
}

/// A chevron at the edge of the lane, pointing to where the value is.
void ProgressPainter::paintBeyond(const Mark &mark, double radius)
{
    radius = std::max(radius, em(0.17));
    const double down = mark.kind == Mark::Kind::AboveScale ? 1 : -1;
    p.setPen(pen(c.muted, 1.4));
    p.drawPolyline(QPolygonF({mark.at + QPointF(-radius, down * 1.6 * radius),
                              mark.at + QPointF(0, down * 0.4 * radius),
                              mark.at + QPointF(radius, down * 1.6 * radius)}));
}

void ProgressPainter::paintNote(const NoteSpan &note, const QColor &fill, const QColor &edge,
                                const QColor &ink)
{
    // A line of the ground parts two notes that touch.
    const QRectF bar = note.bar.width() > 4 * hairline()
                           ? note.bar.adjusted(hairline() / 2, 0, -hairline() / 2, 0)
                           : note.bar;
    p.fillRect(bar, fill);
    p.fillRect(QRectF(bar.left(), bar.bottom() - 1.5 * hairline(), bar.width(), 1.5 * hairline()),
               edge);
    if (!note.hasRoom)
        return;
    p.setFont(fonts().caption);
    p.setPen(ink);
    p.drawText(bar, Qt::AlignCenter | Qt::TextDontClip, note.letter);
}

void ProgressPainter::paintSample(const LegendEntry &entry)
{
    const QRectF &rect = entry.sample;
    const Mark mark = {0, Mark::Kind::Measured, rect.center()};
    const double usual = em(0.24) / markRadius();
    const QPointF left(rect.left(), rect.center().y());
    const QPointF right(rect.right(), rect.center().y());
    p.setRenderHint(QPainter::Antialiasing, true);
    switch (entry.kind) {
    case LegendKind::Line:
        p.setPen(pen(c.line(entry.series), 2));
        p.drawLine(left, right);
        paintMark(mark, entry.series, usual);
        break;
    case LegendKind::Measured:
        paintMark(mark, Series::Weight, usual);
        break;
    case LegendKind::FilledIn:
        p.setPen(bridgePen(Series::Weight));
        p.drawLine(left, right);
        paintMark({0, Mark::Kind::FilledIn, rect.center()}, Series::Weight, usual);
        break;
    case LegendKind::BeyondScale:
        p.setPen(bridgePen(Series::Weight));
        p.drawLine(left + QPointF(0, em(0.25)), right + QPointF(0, em(0.25)));
        paintMark({0, Mark::Kind::AboveScale, rect.center() - QPointF(0, em(0.35))}, Series::Weight,
                  usual);
        break;
    case LegendKind::Target:
        p.setPen(targetPen(entry.series));
        p.drawLine(left, right);
        break;
    case LegendKind::Trend:
        p.setPen(trendPen());
        p.drawLine(left, right);
        break;
    case LegendKind::Average:
        p.setPen(averagePen());
        p.drawLine(left, right);
        break;
    case LegendKind::Surplus:
    case LegendKind::Deficit:
        p.fillRect(rect, entry.kind == LegendKind::Surplus ? c.surplus : c.deficit);
        break;
    case LegendKind::NotRecorded:
        paintStrip(QRectF(rect.left() - em(0.15), rect.center().y() - em(0.18), em(1.1), em(0.36)));
        break;
    }
    p.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

void paintProgressChart(QPainter &painter, const ProgressGeometry &geometry,
                        const ProgressColors &colors, const plot::Fonts &fonts)
{
    painter.save();
    painter.setBrush(Qt::NoBrush);
    ProgressPainter(painter, geometry, colors, fonts).paint();
    painter.restore();
}

void paintEmphasis(QPainter &painter, const ProgressGeometry &geometry,
                   const ProgressColors &colors, const plot::Fonts &fonts, const Emphasis &emphasis)
{
    painter.save();
    ProgressPainter chart(painter, geometry, colors, fonts);
    if (emphasis.note && *emphasis.note < geometry.notes.size()) {
        NoteSpan note = geometry.notes[*emphasis.note];
        note.hasRoom = true;
        QColor tint = colors.highlight;
        tint.setAlphaF(0.16F);
        painter.fillRect(note.reach, tint);
        chart.paintNote(note, colors.highlight, colors.highlight, colors.onHighlight);
    }
    if (emphasis.day) {
        const double x = geometry.days.center(*emphasis.day);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(QPen(colors.highlight, std::max(1.0, 0.09 * geometry.unit)));
        painter.drawLine(QPointF(x, geometry.lanesTop),
                         QPointF(x, geometry.plot.bottom() + 0.25 * geometry.unit));
        for (const SeriesLine &line : geometry.lines) {
            for (const Mark &mark : line.marks) {
                if (mark.day == *emphasis.day)
                    chart.paintMark(mark, line.series, 1.5);
            }
        }
    }
    painter.restore();
}

} // namespace progress
