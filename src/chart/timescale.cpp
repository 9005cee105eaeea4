#include "chart/timescale.h"

#include <array>

namespace daychart {

int hourLabelStep(const TimeScale &scale, double labelWidth)
{
    constexpr std::array hours = {1, 2, 3, 4, 6, 12};
    for (const int step : hours) {
        if (scale.width * step / 24 >= labelWidth)
            return step * 60;
    }
    return minutesPerDay;
}

} // namespace daychart
