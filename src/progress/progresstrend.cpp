#include "progress/progresstrend.h"

#include <algorithm>

namespace progress {

namespace {

constexpr int week = 7;

/// The first value on a day or after it.
MeasuredValues::const_iterator from(const MeasuredValues &values, QDate date)
{
    return std::lower_bound(values.begin(), values.end(), date,
                            [](const MeasuredValue &value, QDate day) { return value.date < day; });
}

} // namespace

void addMeasured(MeasuredValues &values, const MeasuredValue &added)
{
    const auto place = values.begin() + (from(values, added.date) - values.begin());
    if (place != values.end() && place->date == added.date)
        *place = added;
    else
        values.insert(place, added);
}

std::optional<double> averageAt(const MeasuredValues &values, QDate date)
{
    double sum = 0;
    int count = 0;
    for (auto value = from(values, date.addDays(1 - averagedDays));
         value != values.end() && value->date <= date; ++value) {
        sum += value->value;
        ++count;
    }
    return count < leastAveraged ? std::nullopt : std::optional(sum / count);
}

Trend trendOf(const MeasuredValues &values)
{
    Trend trend;
    if (values.empty())
        return trend;
    trend.last = values.back().date;
    const auto first = from(values, trend.last.addDays(1 - slopeDays));
    trend.days = int(values.end() - first);
    if (trend.days < leastSlopeDays || first->date.daysTo(trend.last) < leastSlopeSpan)
        return trend;

    const auto at = [&](const MeasuredValue &value) {
        return double(trend.last.daysTo(value.date));
    };
    double meanAt = 0;
    double mean = 0;
    for (auto value = first; value != values.end(); ++value) {
        meanAt += at(*value) / trend.days;
        mean += value->value / trend.days;
    }
    double together = 0;
    double squares = 0;
    for (auto value = first; value != values.end(); ++value) {
        const double away = at(*value) - meanAt;
        together += away * (value->value - mean);
        squares += away * away;
    }
    const double perDay = together / squares;
    trend.perWeek = perDay * week;
    trend.now = mean - perDay * meanAt;
    return trend;
}

} // namespace progress
