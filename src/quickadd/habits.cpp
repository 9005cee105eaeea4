#include "quickadd/habits.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>

double habitWeight(QDate day, QTime time, const QDateTime &now)
{
    constexpr int minutesPerDay = 24 * 60;
    constexpr double halfLife = 14;       // days
    constexpr double reach = 180;         // minutes
    constexpr double atOtherHours = 0.01; // of the weight at the hour

    const auto age = double(std::abs(day.daysTo(now.date())));
    const int apart = std::abs(time.secsTo(now.time())) / 60;
    const double minutes = std::min(apart, minutesPerDay - apart); // midnight is no border
    const double nearness = std::max(0.0, 1 - minutes / reach);
    return std::exp2(-age / halfLife) * (atOtherHours + (1 - atOtherHours) * nearness);
}
