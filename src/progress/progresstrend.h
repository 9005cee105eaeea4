// The trend of weight and girths: what lies behind the ups and downs from day to day. It rests on
// measured values alone.
#pragma once

#include <QDate>

#include <optional>
#include <vector>

namespace progress {

/// Above zero, in the user's units.
struct MeasuredValue
{
    QDate date;
    double value;
};

/// In the order of days, at most one a day.
using MeasuredValues = std::vector<MeasuredValue>;

/// Puts a value in its place; it replaces one of the same day.
void addMeasured(MeasuredValues &values, const MeasuredValue &added);

/// Days that an average is taken over, up to and with its own day, and how many of them must have
/// been measured.
inline constexpr int averagedDays = 7;
inline constexpr int leastAveraged = 3;

/// The moving average at a day: the mean of the measured days among the seven that end with it.
/// Empty where fewer than three were measured.
std::optional<double> averageAt(const MeasuredValues &values, QDate date);

/// Days that a slope is taken over, up to and with the last measured one; how many of them must
/// have been measured, and how far apart the first and the last of these must be.
inline constexpr int slopeDays = 28;
inline constexpr int leastSlopeDays = 4;
inline constexpr int leastSlopeSpan = 7;

/// The straight line that fits the last four weeks best.
struct Trend
{
    int days = 0; ///< measured in the four weeks that end with `last`
    QDate last;   ///< the last measured day; null where there is none
    /// Slope of the line, in the user's units a week; empty where the days are too few or too close
    /// together to tell.
    std::optional<double> perWeek;
    /// Height of the line on the last measured day; empty with the slope.
    std::optional<double> now;
};

/// By ordinary least squares: the line whose squared distances to the measured values are least in
/// sum, slope = sum((t - mean t)(v - mean v)) / sum((t - mean t)^2).
Trend trendOf(const MeasuredValues &values);

} // namespace progress
