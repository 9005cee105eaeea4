// The time axis of the daily chart.
#pragma once

#include "chart/daydata.h"

namespace daychart {

/// Midnight at left, midnight at left + width.
struct TimeScale
{
    double left = 0;
    double width = 1;

    double x(double minute) const { return left + width * minute / minutesPerDay; }
    double minute(double x) const { return (x - left) * minutesPerDay / width; }
    double minutesPerUnit() const { return minutesPerDay / width; }
};

/// Minutes from one labelled hour to the next, so that labels that wide do not touch.
int hourLabelStep(const TimeScale &scale, double labelWidth);

} // namespace daychart
