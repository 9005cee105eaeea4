// The activities as blocks on top of the band of the background burn.
#pragma once

#include "chart/daygeometry.h"

namespace daychart {

/// A stretch of an activity during which nothing below it changes; heights in calories per minute.
struct BurnSegment
{
    double begin = 0; ///< minutes from midnight
    double end = 0;
    double low = 0;
    double high = 0;
};

struct BurnStack
{
    std::vector<std::vector<BurnSegment>> activities; ///< the same indices as in the day's data
    std::vector<bool> cut;
    std::vector<bool> negative;
    double low = 0; ///< the least and the greatest of all heights, 0 and background included
    double high = 0;
};

/// Stacks the activities in their order on the background rate, negative ones downwards. Each is
/// shown at least shortest minutes long and lowest calories per minute high, so that it can be
/// seen and clicked; none is cut off the day.
BurnStack stackedBurn(const DayData &day, double shortest, double lowest);

std::vector<ActivityBlock> activityBlocks(const BurnStack &stack, const TimeScale &time,
                                          const ValueScale &scale);

} // namespace daychart
