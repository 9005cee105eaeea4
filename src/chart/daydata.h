// What the daily chart is handed: the items of one day, and the day as minutes.
#pragma once

#include <QTime>

#include <algorithm>
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

/// One consumption. The calories are whole numbers and may be negative.
struct MealItem
{
    int id = 0;
    QTime time;
    int carbohydrate = 0;
    int fat = 0;
    int protein = 0;

    qint64 calories() const { return qint64(carbohydrate) + fat + protein; }
};

/// One performance of an activity; its calories come on top of the background burn.
struct ActivityItem
{
    int id = 0;
    QTime begin;
    QTime end;
    int calories = 0;

    /// Minutes from midnight at which it begins and ends. It lasts at least one minute, so that
    /// its calories per minute are always a number.
    double beginMinute() const { return std::min(minuteOf(begin), minutesPerDay - 1.0); }
    double endMinute() const { return std::max(minuteOf(end), beginMinute() + 1.0); }
    double caloriesPerMinute() const { return calories / (endMinute() - beginMinute()); }
};

struct DayData
{
    double backgroundRate = 0; ///< calories per minute, burnt without any activity
    std::vector<MealItem> meals;
    std::vector<ActivityItem> activities;
};

} // namespace daychart
