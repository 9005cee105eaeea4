// The colours of the progress chart in a light and in a dark palette.
#pragma once

#include "plot/colors.h"
#include "progress/progressseries.h"

namespace progress {

/// Lines differ in lightness and hue so that
/// every kind of colour vision tells them apart; their marks differ in shape, and columns in
/// direction, for where there is no colour at all.
struct ProgressColors : plot::BaseColors
{
    QColor weight;
    QColor trend; ///< of the weight
    QColor breast;
    QColor waist;
    QColor hips;
    QColor month; ///< where one begins
    QColor surplus;
    QColor deficit;
    QColor note; ///< bar
    QColor noteEdge;
    QColor noteReach; ///< through the lanes

    explicit ProgressColors(const QPalette &palette);

    const QColor &line(Series series) const;
};

} // namespace progress
