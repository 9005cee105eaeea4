// The colours that every chart takes from the palette.
#pragma once

#include "plot/placedtext.h"

#include <QColor>
#include <QPalette>

namespace plot {

/// Ground, text and highlight are the palette's own; what stands between ground and text is mixed
/// from them, so that it keeps its distance from both in a light and in a dark palette.
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
