// The colours of the progress chart in a light and in a dark palette.
#pragma once

#include "chart/chartcolors.h"
#include "progress/progressgeometry.h"

namespace progress {

/// Ground, ink and grid are those of the daily chart. Lines differ in lightness and hue so that
/// every kind of colour vision tells them apart; their marks differ in shape, and columns in
/// direction, for where there is no colour at all.
struct ProgressColors
{
    daychart::ChartColors base;
    QColor weight;
    QColor breast;
    QColor waist;
    QColor hips;
    QColor month; ///< where one begins
    QColor surplus;
    QColor deficit;
    QColor note; ///< bar
    QColor noteEdge;
    QColor noteReach; ///< through the lanes

    static ProgressColors of(const QPalette &palette);

    const QColor &line(Series series) const;
};

} // namespace progress
