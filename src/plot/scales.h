// From values to heights, and the steps of a scale.
#pragma once

#include <vector>

namespace plot {

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

/// The multiples of a step, which is more than 0, from one value to another, from the lowest up.
std::vector<double> multiplesBetween(double low, double high, double step);

/// The multiples of step that lie between two heights of a scale, from the lowest up.
std::vector<double> ticksBetween(const ValueScale &scale, double step, double topY, double bottomY);

} // namespace plot
