// The day's totals and the running balance: eaten so far, less burnt so far.
#pragma once

#include "chart/daydata.h"

namespace daychart {

/// Totals of the day in whole calories, rounded so that the figures shown add up.
struct DayFigures
{
    Nutrients<qint64> byNutrient; ///< of what was eaten
    qint64 activities = 0;
    qint64 background = 0; ///< the rate over all 1440 minutes of the day

    qint64 eaten() const { return byNutrient.sum(); }
    qint64 burnt() const { return activities + background; }
    /// Positive: more was eaten than burnt.
    qint64 balance() const { return eaten() - burnt(); }
};

DayFigures dayFigures(const DayData &day);

/// What may be eaten on a day with these figures.
qint64 caloriesOf(const Budget &budget, const DayFigures &figures);

struct BalancePoint
{
    double minute = 0; ///< 0 to 1440
    double calories = 0;
};

/// The running balance as the corners of a line from minute 0 to 1440, ordered by minute. It is
/// straight between two corners; a meal is a jump, that is two corners at the same minute.
std::vector<BalancePoint> balanceCurve(const DayData &day);

/// The balance at a minute, with everything eaten at that minute counted. The curve must be one
/// of balanceCurve.
double balanceAt(const std::vector<BalancePoint> &curve, double minute);

} // namespace daychart
