#include "goals/goalpace.h"

#include "settings/units.h"

#include <cmath>

namespace {

constexpr double daysPerWeek = 7;
constexpr double healthyShare = 0.01;
constexpr double caloriesPerKilogram = 7700;

std::optional<Pace> paceOf(double perWeek, double weight)
{
    return Pace{std::abs(perWeek), std::abs(perWeek) / weight};
}

bool isKnown(const std::optional<double> &weight)
{
    return weight && *weight > 0;
}

} // namespace

bool Pace::isUnhealthy() const
{
    constexpr double roundingError = 1e-9;
    return share > healthyShare + roundingError;
}

std::optional<Pace> paceToDate(const Goals &goals, std::optional<double> presentWeight, QDate today)
{
    if (!goals.weight || !isKnown(presentWeight) || !goals.date.isValid() || goals.date <= today)
        return std::nullopt;
    const double weeks = double(today.daysTo(goals.date)) / daysPerWeek;
    return paceOf((*goals.weight - *presentWeight) / weeks, *presentWeight);
}

std::optional<Pace> paceOfDeficit(const Goals &goals, std::optional<double> presentWeight)
{
    if (!isKnown(presentWeight) || !goals.budget ||
        goals.budget->kind != DailyBudget::Kind::BurnLessDeficit)
        return std::nullopt;
    const double kilograms = goals.budget->calories * daysPerWeek / caloriesPerKilogram;
    return paceOf(goals.isMetric ? kilograms : kilograms / units::LbToKg.toDouble(),
                  *presentWeight);
}

std::optional<QDate> reachedOn(double value, double changePerWeek, double goal, QDate today)
{
    constexpr double mostDays = 5 * 365.25;
    const double days = (goal - value) / changePerWeek * daysPerWeek;
    if (!(days > 0 && days <= mostDays)) // of a slope of 0, too
        return std::nullopt;
    return today.addDays(qint64(std::ceil(days)));
}
