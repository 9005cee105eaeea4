#include "progress/progresssummary.h"

namespace progress {

namespace {

std::optional<double> changeOf(const DaySeries &series, Series which)
{
    std::optional<double> first;
    std::optional<double> change;
    for (qint16 day = 1; day <= series.nDays(); ++day) {
        const Day &record = series.at(day);
        if (record.source != BodySource::Measured || !record.isKnown(which))
            continue;
        const auto value = double(record.value(which));
        if (first)
            change = value - *first;
        else
            first = value;
    }
    return change;
}

} // namespace

Summary summaryOf(const DaySeries &series)
{
    Summary summary;
    summary.days = series.nDays();
    summary.lastDay = series.period().dateTo;
    double total = 0;
    for (qint16 day = 1; day <= series.nDays(); ++day) {
        const Day &record = series.at(day);
        if (record.hasCalories) {
            ++summary.calorieDays;
            total += record.calories;
        }
    }
    if (summary.calorieDays > 0)
        summary.averageBalance = total / summary.calorieDays;
    for (const Series which : allSeries) {
        summary.changes[size_t(which)] = changeOf(series, which);
        const Trend trend = trendOf(series.measured(which));
        if (trend.last >= series.period().dateFrom)
            summary.trends[size_t(which)] = trend;
    }
    return summary;
}

} // namespace progress
