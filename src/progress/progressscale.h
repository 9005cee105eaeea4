// The scales of the progress chart.
#pragma once

#include "data/currency.h"
#include "progress/progressseries.h"

namespace progress {

/// A scale of values from one multiple of its step to another, drawn between two heights.
struct SteppedScale
{
    double low = 0;
    double high = 1;
    double step = 1;
    double topY = 0;
    double bottomY = 0;

    double y(double value) const { return bottomY - (value - low) / (high - low) * height(); }
    double height() const { return bottomY - topY; }
    /// The multiples of the step, or of a few steps, that stand at least so far apart, or else the
    /// two ends; none where the scale has no height.
    std::vector<double> ticks(double apart) const;
};

/// The scale of a range, which must not be empty, in about so many steps of 1, 2 or 5 times a
/// power of ten, none below leastStep. Throws OverflowError for values beyond a decimal's range.
SteppedScale scaleOf(const Range &range, int steps, double leastStep, double topY, double bottomY);

} // namespace progress
