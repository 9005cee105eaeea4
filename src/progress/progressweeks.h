// The period week by week.
#pragma once

#include "data/nutrients.h"
#include "progress/progressseries.h"

#include <QLocale>

#include <optional>

namespace progress {

/// What a day's meals add up to, in kcal.
struct Consumed
{
    double calories = 0;
    Nutrients<double> byNutrient = {};
};

/// A week, or what the ends of the period leave of it, with sums over its days. Of calories those
/// days have data that the series has a balance for: with a meal or an activity.
struct Week
{
    qint16 firstDay; ///< of the period, counted from 1
    qint16 lastDay;
    int calorieDays = 0;
    double eaten = 0;   ///< kcal, as the meals say
    double balance = 0; ///< kcal, the sum of the series' balances
    Nutrients<double> byNutrient = {};
    /// Mean of the measured days, to a tenth; values filled in don't count. Empty without any.
    std::optional<double> weight = {};
    /// Of that mean, from the week before; empty where one of them is not known.
    std::optional<double> change = {};
    std::vector<size_t> notes = {}; ///< those that meet it, by their places in the series

    int days() const { return lastDay - firstDay + 1; }
    /// As the series takes it: of what its balances are, activities and background together.
    double burnt() const { return eaten - balance; }
    /// Percents of the calories that come from nutrients, whole ones that add up to 100; empty
    /// where nothing was eaten.
    std::optional<Nutrients<int>> shares() const;
};

struct Weeks
{
    std::vector<Week> weeks;
    /// The same over the whole period; its change is from the first known week to the last.
    Week whole;
};

/// For each day of a period; empty ones where nothing was eaten. Throws StoreError.
std::vector<Consumed> loadConsumed(deData &data, const Period &period);

/// The weeks of the series, which begin on the locale's first day.
Weeks weeksOf(const DaySeries &series, const std::vector<Consumed> &consumed,
              const QLocale &locale);

} // namespace progress
