// The colours of the daily chart in a light and in a dark palette.
#pragma once

#include "chart/chartparts.h"
#include "plot/colors.h"

namespace daychart {

/// The fills differ along blue to yellow and in lightness, which every kind of colour vision tells
/// apart; the hatching of fat does without colour altogether. What tells a figure, or the edge
/// around it, stands out from the ground of any palette (plot::discernible).
struct DayColors : plot::BaseColors
{
    Nutrients<QColor> nutrients;
    QColor fatHatch;
    QColor stub; ///< a meal without calories
    QColor activity;
    QColor activityEdge;
    QColor band;
    QColor bandEdge;
    QColor balance;
    QColor now; ///< the mark of the present minute

    explicit DayColors(const QPalette &palette);

    const QColor &fill(Part part) const;
};

} // namespace daychart
