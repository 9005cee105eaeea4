// The calories written at columns and blocks.
#pragma once

#include "chart/charttexts.h"
#include "chart/daygeometry.h"

namespace daychart {

/// The calories of each meal at the far end of its column, and of each activity in or above its
/// block. A label that would touch another one, another item or the end of the lane, or cover a
/// corner of the balance line, is left out; the larger figure is placed first.
std::vector<ItemLabel> mealLabels(const DayData &day, const std::vector<MealColumn> &columns,
                                  const LaneGeometry &lane, const std::vector<QPointF> &balance,
                                  const TextMetrics &metrics, const ChartTexts &texts);
std::vector<ItemLabel> activityLabels(const DayData &day, const std::vector<ActivityBlock> &blocks,
                                      const LaneGeometry &lane, const std::vector<QPointF> &balance,
                                      const TextMetrics &metrics, const ChartTexts &texts);

} // namespace daychart
