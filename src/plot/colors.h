// The colours that every chart takes from the palette.
#pragma once

#include "plot/placedtext.h"

#include <QColor>
#include <QPalette>

namespace plot {

/// How much two opaque colours differ in lightness, from 1 to 21: the contrast ratio of the Web
/// Content Accessibility Guidelines, of relative luminances.
double contrast(const QColor &a, const QColor &b);

constexpr double legible = 4.5;     ///< least contrast of a text with what is behind it
constexpr double discernible = 3.0; ///< least contrast of a mark with what is beside it

/// The colour itself, or the nearest to it on the way to white or black that has at least this
/// contrast with a ground; where none has, the farther of those two.
QColor standingOut(const QColor &color, const QColor &ground, double least);

/// Ground and text are the palette's own; what stands between them is mixed from them, so that it
/// keeps its distance from both in a light, in a dark and in a high-contrast palette.
struct BaseColors
{
    QColor ground;
    QColor ink;
    QColor muted;
    QColor grid;
    QColor axis;
    QColor highlight;
    QColor onHighlight;
    QColor onFill; ///< of texts on a chart's own colours; the ink's unless the chart sets another
    bool isDark = false;

    explicit BaseColors(const QPalette &palette);

    const QColor &tone(Tone tone) const;
};

/// The colour that lies between two.
QColor mixed(const QColor &a, const QColor &b, double shareOfB);

} // namespace plot
