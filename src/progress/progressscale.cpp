#include "progress/progressscale.h"

#include "data/valuehelpers.h"
#include "plot/scales.h"

#include <algorithm>
#include <cmath>

namespace progress {

std::vector<double> SteppedScale::ticks(double apart) const
{
    if (height() <= 0)
        return {}; // of a lane without values, or without room
    const double distance = height() * step / (high - low);
    const double every =
        distance >= apart ? step : step * std::ceil(plot::roundStep(apart / distance));
    const std::vector<double> values = plot::multiplesBetween(low, high, every);
    // One value alone is no scale.
    return values.size() < 2 && height() >= apart ? std::vector{low, high} : values;
}

SteppedScale scaleOf(const Range &range, int steps, double leastStep, double topY, double bottomY)
{
    const auto minimum = double(range.minimum);
    const auto maximum = double(range.maximum);
    // SnapToStep counts steps in 16 bits: values that lie far from zero and close together get
    // a coarser step than their distance alone would ask for.
    constexpr double mostSteps = 30000;
    const double magnitude = std::max(std::abs(minimum), std::abs(maximum));
    if (minimum == maximum)
        leastStep = std::max(leastStep, 1.0); // a single value tells of no finer one
    const Currency step =
        Currency::fromDouble(std::max({leastStep, plot::roundStep((maximum - minimum) / steps),
                                       plot::roundStep(magnitude / mostSteps)}));
    Currency low = SnapToStep(range.minimum, true, step);
    Currency high = SnapToStep(range.maximum, false, step);
    if (low == high) {
        low = low - step;
        high = high + step;
    }
    return {low.toDouble(), high.toDouble(), step.toDouble(), topY, bottomY};
}

} // namespace progress
