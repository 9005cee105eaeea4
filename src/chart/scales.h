// From values and times to positions and back.
#pragma once

#include "chart/daydata.h"

#include <vector>

namespace daychart {

/// The time axis: midnight at left, midnight at left + width.
struct TimeScale
{
    double left = 0;
    double width = 1;

    double x(double minute) const { return left + width * minute / minutesPerDay; }
    double minute(double x) const { return (x - left) * minutesPerDay / width; }
    double minutesPerUnit() const { return minutesPerDay / width; }
};

/// A scale of values that grows upwards, while y grows downwards.
struct ValueScale
{
    double zeroY = 0;
    double perValue = 0; ///< length of one unit of value

    double y(double value) const { return zeroY - perValue * value; }
};

/// Fits the values low to high between two heights; low and high are widened to include 0.
ValueScale fittedScale(double low, double high, double topY, double bottomY);

/// Fits low to high around a zero that stands still at zeroY.
ValueScale scaleAround(double zeroY, double low, double high, double topY, double bottomY);

/// The smallest of 1, 2, 5, 10, 20, 50, ... (and 0.5, 0.2, ...) that is not below a value.
/// At least 0.01, which is finer than any label needs.
double roundStep(double atLeast);

/// The multiples of step that lie between two heights of a scale, from the lowest up.
std::vector<double> ticksBetween(const ValueScale &scale, double step, double topY, double bottomY);

/// Minutes from one labelled hour to the next, so that labels that wide do not touch.
int hourLabelStep(const TimeScale &scale, double labelWidth);

/// The largest magnitude that may be drawn to scale. A value of more than 25 times the next smaller
/// one would press all others flat; it is drawn cut off at one and a half times that one.
double drawnLimit(std::vector<double> magnitudes);

} // namespace daychart
