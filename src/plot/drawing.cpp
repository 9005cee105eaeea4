#include "plot/drawing.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace plot {

Drawing::Drawing(QPainter &painter, double unit, const BaseColors &colors, const Fonts &fonts)
    : p(painter)
    , m_colors(colors)
    , m_fonts(fonts)
    , m_unit(unit)
    , m_hairline(std::max(1.0, em(0.055)))
{
}

void Drawing::text(const PlacedText &text)
{
    p.setFont(m_fonts.font(text.role));
    p.setPen(m_colors.tone(text.tone));
    p.drawText(text.rect, int(text.alignment) | Qt::TextSingleLine | Qt::TextDontClip, text.text);
}

// From lower left to upper right, along which x + y is constant. Drawn one by one, because a
// brush's pattern would keep the size of a screen's pixels on paper.
void Drawing::hatch(const QRectF &rect, const QPen &pen)
{
    const double apart = em(0.3);
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
