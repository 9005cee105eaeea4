// The colours of the daily chart in a light and in a dark palette.
#pragma once

#include "chart/chartgeometry.h"

#include <QColor>
#include <QPalette>

namespace daychart {

/// Ground, text and highlight are the palette's own. The fills differ along blue to yellow and in
/// lightness, which every kind of colour vision tells apart; the hatching of fat does without
/// colour altogether.
struct ChartColors
{
    QColor ground;
    QColor ink;
    QColor muted;
    QColor grid;
    QColor axis;
    QColor carbohydrate;
    QColor fat;
    QColor fatHatch;
    QColor protein;
    QColor stub; ///< a meal without calories
    QColor activity;
    QColor activityEdge;
    QColor onActivity;
    QColor band;
    QColor bandEdge;
    QColor balance;
    QColor highlight;
    QColor onHighlight;

    static ChartColors of(const QPalette &palette);

    const QColor &tone(Tone tone) const;
    const QColor &fill(Part part) const;
};

} // namespace daychart
