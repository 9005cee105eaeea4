// What a person asks of a period, in figures.
#pragma once

#include "progress/progressseries.h"

#include <optional>

namespace progress {

struct Summary
{
    /// From the first to the last day on which it was measured; empty unless these are two.
    std::array<std::optional<double>, allSeries.size()> changes;
    /// kcal, over the days that have calorie data; empty where none has.
    std::optional<double> averageBalance;
    int calorieDays = 0;
    int days = 0;
    QDate lastDay;
    /// Of those measured in the period; without days for the others.
    std::array<Trend, allSeries.size()> trends;

    std::optional<double> change(Series series) const { return changes[size_t(series)]; }
    const Trend &trend(Series series) const { return trends[size_t(series)]; }
};

Summary summaryOf(const DaySeries &series);

} // namespace progress
