#include "chart/emphasis.h"

#include "chart/charttexts.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace daychart {

namespace {

QPainterPath outlineOf(const DayGeometry &geometry, const Target &target, double distance)
{
    QPainterPath path;
    if (target.isItem(Lane::Activities)) {
        for (const QRectF &segment : geometry.blocks[size_t(target.item)].segments)
            path.addRect(segment.adjusted(-distance, -distance, distance, distance));
        return path.simplified();
    }
    const QRectF rect = boundsOf(geometry, target);
    path.addRoundedRect(rect.adjusted(-distance, -distance, distance, distance), distance,
                        distance);
    return path;
}

void paintPlace(QPainter &painter, const DayGeometry &geometry, const DayColors &colors,
                const plot::Fonts &fonts, const ChartTexts &texts, const Cursor &cursor)
{
    const double unit = geometry.unit;
    const QRectF &lane = geometry.lane(cursor.target.lane).area;
    const double x = geometry.time.x(cursor.minute);
    painter.setPen(QPen(colors.highlight, 0.06 * unit, Qt::DotLine));
    painter.drawLine(QPointF(x, lane.bottom()), QPointF(x, geometry.timeAxis.top()));
    painter.setPen(QPen(colors.highlight, 0.12 * unit));
    painter.drawLine(QPointF(x, lane.top()), QPointF(x, lane.bottom()));

    const QString text = QStringLiteral("+ ") + texts.time(timeOf(cursor.minute));
    const double width = QFontMetricsF(fonts.caption).horizontalAdvance(text) + 0.8 * unit;
    const QRectF plate(x - width / 2, geometry.timeAxis.top() + 0.2 * unit, width, 1.4 * unit);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.highlight);
    painter.drawRoundedRect(plate, 0.25 * unit, 0.25 * unit);
    painter.setFont(fonts.caption);
    painter.setPen(colors.onHighlight);
    painter.drawText(plate, Qt::AlignCenter, text);
}

} // namespace

void paintEmphasis(QPainter &painter, const DayGeometry &geometry, const DayColors &colors,
                   const plot::Fonts &fonts, const ChartTexts &texts, const Cursor &cursor,
                   bool strong)
{
    if (cursor.target.kind == Target::Kind::None)
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    if (cursor.target.kind == Target::Kind::FreePlace) {
        paintPlace(painter, geometry, colors, fonts, texts, cursor);
    } else {
        const QPainterPath outline =
            outlineOf(geometry, cursor.target, (strong ? 0.14 : 0.1) * geometry.unit);
        QColor tint = colors.highlight;
        tint.setAlphaF(0.12F);
        painter.fillPath(outline, tint);
        if (strong || cursor.target.kind == Target::Kind::Item)
            painter.strokePath(outline, QPen(colors.highlight, geometry.unit * 0.11));
    }
    painter.restore();
}

} // namespace daychart
