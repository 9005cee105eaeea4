// What the daily chart is handed: the items of one day, and the day as minutes.
#pragma once

#include "data/nutrients.h"

#include <QString>
#include <QTime>

#include <algorithm>
#include <optional>
#include <vector>

namespace daychart {

inline constexpr int minutesPerDay = 24 * 60;

/// Minutes since midnight, 0 up to but not including 1440; an invalid time counts as midnight.
inline double minuteOf(QTime time)
{
    return time.isValid() ? time.msecsSinceStartOfDay() / 60000.0 : 0.0;
}

/// The time of a minute of the day; minutes outside the day are moved to its first or last one.
inline QTime timeOf(int minute)
{
    return QTime(0, 0).addSecs(std::clamp(minute, 0, minutesPerDay - 1) * 60);
}

/// What an item is and how much of it, ready to be shown: one line each, whatever characters they
/// hold; empty where it is not known.
struct ItemWords
{
    QString name = {};
    QString quantity = {}; ///< with its unit
};

/// One consumption. The calories are whole numbers and may be negative.
struct MealItem
{
    int id = 0;
    QTime time;
    Nutrients<int> byNutrient;
    ItemWords words = {};

    qint64 calories() const { return byNutrient.sum<qint64>(); }
};

/// One performance of an activity; its calories come on top of the background burn.
struct ActivityItem
{
    int id = 0;
    QTime begin;
    QTime end;
    int calories = 0;
    ItemWords words = {};

    /// Minutes from midnight at which it begins and ends. It lasts at least one minute, so that
    /// its calories per minute are always a number.
    double beginMinute() const { return std::min(minuteOf(begin), minutesPerDay - 1.0); }
    double endMinute() const { return std::max(minuteOf(end), beginMinute() + 1.0); }
    double caloriesPerMinute() const { return calories / (endMinute() - beginMinute()); }
};

/// How much may be eaten on the day.
struct Budget
{
    bool ofBurnt = false; ///< what is burnt, less the calories, instead of the calories alone
    int calories = 0;
};

struct DayData
{
    double backgroundRate = 0; ///< calories per minute, burnt without any activity
    std::vector<MealItem> meals = {};
    std::vector<ActivityItem> activities = {};
    std::vector<MealItem> moreMeals = {}; ///< not drawn; in the totals and the balance only
    std::vector<ActivityItem> moreActivities = {};
    std::optional<int> now = {}; ///< the present minute, 0 to 1439, on the current day only
    std::optional<Budget> budget = {};

    /// More items of a kind could neither be told apart nor be laid out in time.
    static constexpr size_t mostDrawn = 500;

    void add(const MealItem &meal)
    {
        (meals.size() < mostDrawn ? meals : moreMeals).push_back(meal);
    }
    void add(const ActivityItem &activity)
    {
        (activities.size() < mostDrawn ? activities : moreActivities).push_back(activity);
    }
    /// Calls for every item, drawn or not.
    template<typename Call>
    void forEachMeal(const Call &call) const
    {
        std::for_each(meals.begin(), meals.end(), call);
        std::for_each(moreMeals.begin(), moreMeals.end(), call);
    }
    template<typename Call>
    void forEachActivity(const Call &call) const
    {
        std::for_each(activities.begin(), activities.end(), call);
        std::for_each(moreActivities.begin(), moreActivities.end(), call);
    }
    size_t mealCount() const { return meals.size() + moreMeals.size(); }
    size_t activityCount() const { return activities.size() + moreActivities.size(); }
};

} // namespace daychart
