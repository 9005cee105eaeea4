#include "chart/drawnlimit.h"

#include <algorithm>
#include <functional>

namespace daychart {

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
