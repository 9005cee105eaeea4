// How fast a goal is to be reached, and when it will be.
#pragma once

#include "goals/goals.h"

/// A change of weight in a week.
struct Pace
{
    double perWeek; ///< in the unit of the weight, without its sign
    double share;   ///< of the present weight

    /// Faster than 1 % of the body's weight in a week, which advice on losing weight holds to be
    /// too fast.
    bool isUnhealthy() const;
};

/// What it takes from the present weight, in the goals' units, to the goal by its date; none where
/// one of them is missing or the date is not ahead.
std::optional<Pace> paceToDate(const Goals &goals, std::optional<double> presentWeight,
                               QDate today);

/// What a deficit comes to, by the usual 7,700 kcal for each kilogram of body weight; none where
/// the budget is no deficit or the weight isn't known.
std::optional<Pace> paceOfDeficit(const Goals &goals, std::optional<double> presentWeight);

/// The day on which a value that now changes by so much in a week reaches a goal. None where it is
/// there already, moves away from it or would need more than five years.
std::optional<QDate> reachedOn(double value, double changePerWeek, double goal, QDate today);
