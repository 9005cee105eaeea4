// What the painters of the charts share.
#pragma once

#include "plot/colors.h"
#include "plot/fonts.h"

#include <QPen>

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

    void text(const PlacedText &text);
    /// Fills a rectangle with slanted lines, which run on from one rectangle to the next.
    void hatch(const QRectF &rect, const QPen &pen);

    QPainter &p;

private:
    const BaseColors &m_colors;
    const Fonts &m_fonts;
    double m_unit;
    double m_hairline;
};

} // namespace plot
