// What the painters of the charts share.
#pragma once

#include "plot/colors.h"
#include "plot/fonts.h"

#include <QBrush>
#include <QPen>

#include <algorithm>
#include <cmath>

class QPainter;

namespace plot {

/// Draws with pens and distances that go with the size of the text.
class Drawing
{
protected:
    /// The unit is the height of a line of text, in the painter's units.
    Drawing(QPainter &painter, double unit, const BaseColors &colors, const Fonts &fonts);

    double em(double count) const { return count * m_unit; }
    /// As thick as so many of the thinnest lines.
    QPen pen(const QColor &color, double lines = 1, Qt::PenStyle style = Qt::SolidLine) const
    {
        return {color, lines * hairline(), style, Qt::FlatCap, Qt::MiterJoin};
    }
    double hairline() const { return m_hairline; }
    const Fonts &fonts() const { return m_fonts; }

    /// Lines as thick as so many of the thinnest ones, which lie on whole dots of the device:
    /// sharp, and drawn at a small part of what a pen's would cost.
    void horizontal(double y, double from, double to, const QColor &color, double lines = 1);
    void vertical(double x, double from, double to, const QColor &color, double lines = 1);
    /// A line at any slope, of an antialiased shape with ends that are cut upright or level.
    void slope(const QPointF &from, const QPointF &to, const QColor &color, double lines);
    void text(const PlacedText &text);
    /// Fills a rectangle with slanted lines, which run on from one rectangle to the next.
    void hatch(const QRectF &rect, const QPen &pen);

    QPainter &p;

private:
    /// In dots of the device.
    double thickness(double lines) const
    {
        return std::max(1.0, std::round(lines * m_hairline * m_dots));
    }
    double hatchDistance() const { return em(0.3); }
    /// Of a screen or a picture; not of paper, which is drawn by lines and areas.
    bool isOfDots() const;
    void fill(const QRectF &rect, const QBrush &brush);
    void slopeInPieces(const QPointF &from, const QPointF &to, const QColor &color, double lines);
    void hatchOnScreen(const QRectF &rect, const QPen &pen);

    const BaseColors &m_colors;
    const Fonts &m_fonts;
    double m_unit;
    double m_hairline;
    double m_dots; ///< of the device to one of the painter's units
    QPen m_hatchPen;
    QBrush m_hatch; ///< of that pen
};

} // namespace plot
