// Where the parts of the main window's day view stand.
#pragma once

#include <QRect>
#include <QSize>

/// In pixels, like the size of the view.
struct DayViewLayout
{
    QRect heading;
    QRect graph;
    int buttonTop = 0;
    int dateTop = 0;
    int bottom = 0; ///< where buttons and date box end
};

/// Least width of the main window in its normal state, in twips (1/1440 inch).
inline constexpr int leastWindowTwips = 8000;

/// Lays out a view of the given size: the chart takes what the heading and the row of buttons
/// leave. False, and nothing laid out, where the view is too small for it.
bool layOutDayView(QSize view, double pixelsPerTwip, DayViewLayout &layout);
