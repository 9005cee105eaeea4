#include "chart/scales.h"

#include <array>
#include <cmath>
#include <limits>

namespace daychart {

ValueScale fittedScale(double low, double high, double topY, double bottomY)
{
    low = std::min(low, 0.0);
    high = std::max(high, 0.0);
    if (!(high > low) || bottomY <= topY)
        return {bottomY, 0};
    const double perValue = (bottomY - topY) / (high - low);
    return {bottomY + low * perValue, perValue};
}

ValueScale scaleAround(double zeroY, double low, double high, double topY, double bottomY)
{
    double perValue = std::numeric_limits<double>::infinity();
    if (high > 0)
        perValue = std::max(0.0, zeroY - topY) / high;
    if (low < 0)
        perValue = std::min(perValue, std::max(0.0, bottomY - zeroY) / -low);
    return {zeroY, std::isfinite(perValue) ? perValue : 0};
}

double roundStep(double atLeast)
{
    if (!(atLeast > 0.01))
        return 0.01;
    const double power = std::pow(10.0, std::floor(std::log10(atLeast)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= atLeast * (1 - 1e-9))
            return factor * power;
    }
    return 10 * power;
}

std::vector<double> ticksBetween(const ValueScale &scale, double step, double topY, double bottomY)
{
    std::vector<double> ticks;
    if (!(scale.perValue > 0) || !(step > 0))
        return ticks;
    const double tolerance = 1e-6;
    const double first = std::ceil((scale.zeroY - bottomY) / scale.perValue / step - tolerance);
    const double last = std::floor((scale.zeroY - topY) / scale.perValue / step + tolerance);
    const int count = int(last - first) + 1;
    for (int i = 0; i < count; ++i)
        ticks.push_back((first + i) * step);
    return ticks;
}

int hourLabelStep(const TimeScale &scale, double labelWidth)
{
    constexpr std::array hours = {1, 2, 3, 4, 6, 12};
    for (const int step : hours) {
        if (scale.width * step / 24 >= labelWidth)
            return step * 60;
    }
    return minutesPerDay;
}

double drawnLimit(std::vector<double> magnitudes)
{
    std::sort(magnitudes.begin(), magnitudes.end(), std::greater<>());
    if (magnitudes.empty())
        return 0;
    size_t kept = 0;
    while (kept + 1 < magnitudes.size() && magnitudes[kept + 1] > 0 &&
           magnitudes[kept] > 25 * magnitudes[kept + 1])
        ++kept;
    return kept == 0 ? magnitudes[0] : 1.5 * magnitudes[kept];
}

} // namespace daychart
