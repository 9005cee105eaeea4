// The meals as columns stacked from their nutrients.
#pragma once

#include "chart/daygeometry.h"

namespace daychart {

/// The scale on which all meals of the day fit between two heights.
ValueScale mealScale(const DayData &day, double topY, double bottomY);

/// One column per meal. Columns that would overlap stand side by side, in order of time, as near
/// to their times as they can; where many meet, all become narrower. A meal of no calories is a
/// stub of a quarter of the unit.
std::vector<MealColumn> mealColumns(const DayData &day, const TimeScale &time,
                                    const ValueScale &scale, double unit);

} // namespace daychart
