#include "chart/daybalance.h"

namespace daychart {

namespace {

/// Something that happens at a minute: calories are eaten, or the rate of burning changes.
struct Change
{
    double minute = 0;
    double eaten = 0;
    double rate = 0;
};

std::vector<Change> changesOf(const DayData &day)
{
    std::vector<Change> changes;
    changes.reserve(day.mealCount() + 2 * day.activityCount());
    day.forEachMeal([&](const MealItem &meal) {
        changes.push_back({minuteOf(meal.time), double(meal.calories()), 0});
    });
    day.forEachActivity([&](const ActivityItem &activity) {
        changes.push_back({activity.beginMinute(), 0, activity.caloriesPerMinute()});
        changes.push_back({activity.endMinute(), 0, -activity.caloriesPerMinute()});
    });
    std::stable_sort(changes.begin(), changes.end(),
                     [](const Change &a, const Change &b) { return a.minute < b.minute; });
    return changes;
}

} // namespace

DayFigures dayFigures(const DayData &day)
{
    DayFigures figures;
    day.forEachMeal([&](const MealItem &meal) {
        for (const Nutrient n : allNutrients)
            figures.byNutrient[n] += meal.byNutrient[n];
    });
    day.forEachActivity(
        [&](const ActivityItem &activity) { figures.activities += activity.calories; });
    figures.background = qRound64(day.backgroundRate * minutesPerDay);
    return figures;
}

qint64 caloriesOf(const Budget &budget, const DayFigures &figures)
{
    return budget.ofBurnt ? figures.burnt() - budget.calories : budget.calories;
}

std::vector<BalancePoint> balanceCurve(const DayData &day)
{
    std::vector<BalancePoint> curve = {{0, 0}};
    double rate = day.backgroundRate;
    const auto advanceTo = [&](double minute) {
        const BalancePoint last = curve.back();
        if (minute > last.minute)
            curve.push_back({minute, last.calories - rate * (minute - last.minute)});
    };
    for (const Change &change : changesOf(day)) {
        advanceTo(change.minute);
        rate += change.rate;
        if (change.eaten != 0)
            curve.push_back({change.minute, curve.back().calories + change.eaten});
    }
    advanceTo(minutesPerDay);
    return curve;
}

double balanceAt(const std::vector<BalancePoint> &curve, double minute)
{
    const auto after =
        std::upper_bound(curve.begin(), curve.end(), minute,
                         [](double value, const BalancePoint &p) { return value < p.minute; });
    if (after == curve.begin())
        return curve.front().calories;
    const BalancePoint from = *(after - 1);
    if (after == curve.end())
        return from.calories;
    const double share = (minute - from.minute) / (after->minute - from.minute);
    return from.calories + share * (after->calories - from.calories);
}

} // namespace daychart
