#include "plot/scales.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace plot {

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

std::vector<double> multiplesBetween(double low, double high, double step)
{
    const double tolerance = 1e-6;
    const double first = std::ceil(low / step - tolerance);
    const int count = int(std::floor(high / step + tolerance) - first) + 1;
    std::vector<double> multiples;
    multiples.reserve(size_t(std::max(count, 0)));
    for (int i = 0; i < count; ++i)
        multiples.push_back((first + i) * step);
    return multiples;
}

std::vector<double> ticksBetween(const ValueScale &scale, double step, double topY, double bottomY)
{
    if (!(scale.perValue > 0) || !(step > 0))
        return {};
    return multiplesBetween((scale.zeroY - bottomY) / scale.perValue,
                            (scale.zeroY - topY) / scale.perValue, step);
}

} // namespace plot
