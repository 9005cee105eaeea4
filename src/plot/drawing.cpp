#include "plot/drawing.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>

#include <array>

namespace plot {

Drawing::Drawing(QPainter &painter, double unit, const BaseColors &colors, const Fonts &fonts)
    : p(painter)
    , m_colors(colors)
    , m_fonts(fonts)
    , m_unit(unit)
    , m_hairline(std::max(1.0, em(0.055)))
    , m_dots(painter.device()->devicePixelRatioF())
{
}

bool Drawing::isOfDots() const
{
    return p.paintEngine()->type() == QPaintEngine::Raster;
}

void Drawing::horizontal(double y, double from, double to, const QColor &color, double lines)
{
    const double thick = thickness(lines);
    const double top = std::round(y * m_dots - thick / 2);
    p.fillRect(QRectF(from, top / m_dots, to - from, thick / m_dots).normalized(), color);
}

// Qt hands a shape of more than 95 runs of dots to several threads, to wait for which costs a chart
// several times as much as to draw it. A pattern and what shows through have a run in each row.
void Drawing::fill(const QRectF &rect, const QBrush &brush)
{
    constexpr int rows = 64;
    const int bottom = qRound(rect.bottom() * m_dots);
    for (int top = qRound(rect.top() * m_dots); top < bottom; top += rows)
        p.fillRect(
            QRectF(rect.left(), top / m_dots, rect.width(), std::min(rows, bottom - top) / m_dots),
            brush);
}

void Drawing::vertical(double x, double from, double to, const QColor &color, double lines)
{
    const double thick = thickness(lines);
    const double left = std::round(x * m_dots - thick / 2);
    const QRectF rect = QRectF(left / m_dots, from, thick / m_dots, to - from).normalized();
    if (color.alpha() == 255 || !isOfDots())
        p.fillRect(rect, color);
    else
        fill(rect, color);
}

void Drawing::slope(const QPointF &from, const QPointF &to, const QColor &color, double lines)
{
    p.setRenderHint(QPainter::Antialiasing, true);
    if (isOfDots()) {
        slopeInPieces(from, to, color, lines);
    } else {
        p.setPen(pen(color, lines));
        p.drawLine(from, to);
    }
    p.setRenderHint(QPainter::Antialiasing, false);
}

// Short ones for the reason above. They meet at whole dots and therefore don't show.
void Drawing::slopeInPieces(const QPointF &from, const QPointF &to, const QColor &color,
                            double lines)
{
    const QPointF way = to - from;
    const bool isSteep = std::abs(way.y()) > std::abs(way.x());
    const double length = isSteep ? way.y() : way.x();
    if (length == 0)
        return;
    const double half = lines * m_hairline * std::hypot(way.x(), way.y()) / std::abs(length) / 2;
    const QPointF across = isSteep ? QPointF(half, 0) : QPointF(0, half);
    const double start = isSteep ? from.y() : from.x();
    const double piece = std::copysign(16 / m_dots, length);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    QPointF begin = from;
    for (double at = std::round(start * m_dots) / m_dots + piece, share = 0; share < 1;
         at += piece) {
        share = std::min(1.0, (at - start) / length);
        const QPointF end = from + share * way;
        const std::array corners = {begin + across, end + across, end - across, begin - across};
        p.drawConvexPolygon(corners.data(), int(corners.size()));
        begin = end;
    }
    p.setBrush(Qt::NoBrush);
}

void Drawing::text(const PlacedText &text)
{
    p.setFont(m_fonts.font(text.role));
    p.setPen(m_colors.tone(text.tone));
    p.drawText(text.rect, int(text.alignment) | Qt::TextSingleLine | Qt::TextDontClip, text.text);
}

// A tile of the pattern, as many whole dots wide as come nearest to the lines' distance.
void Drawing::hatchOnScreen(const QRectF &rect, const QPen &pen)
{
    if (pen != m_hatchPen) {
        const int side = std::max(3, int(std::round(hatchDistance() * m_dots)));
        QImage tile(side, side, QImage::Format_ARGB32_Premultiplied);
        tile.fill(Qt::transparent);
        QPainter painter(&tile);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(pen.color(), pen.widthF() * m_dots));
        for (const int sum : {0, side, 2 * side})
            painter.drawLine(QPointF(sum + side, -side), QPointF(-side, sum + side));
        m_hatch = QBrush(tile);
        m_hatch.setTransform(QTransform::fromScale(1 / m_dots, 1 / m_dots));
        m_hatchPen = pen;
    }
    fill(rect, m_hatch);
}

// From lower left to upper right, along which x + y is constant. On paper they are drawn one by
// one: a pattern would become a picture there, as coarse as on the screen.
void Drawing::hatch(const QRectF &rect, const QPen &pen)
{
    if (isOfDots()) {
        hatchOnScreen(rect, pen);
        return;
    }
    const double apart = hatchDistance();
    QList<QLineF> lines;
    const int first = int(std::ceil((rect.left() + rect.top()) / apart));
    const int last = int(std::floor((rect.right() + rect.bottom()) / apart));
    for (int i = first; i <= last; ++i) {
        const double sum = i * apart;
        const double from = std::max(rect.left(), sum - rect.bottom());
        const double to = std::min(rect.right(), sum - rect.top());
        lines.append(QLineF(from, sum - from, to, sum - to));
    }
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(pen);
    p.drawLines(lines);
    p.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace plot
