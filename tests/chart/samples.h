// Days to draw, from none to too much.
#pragma once

#include "chart/charttexts.h"

#include <QRandomGenerator>

namespace samples {

inline daychart::DayData typicalDay()
{
    daychart::DayData day;
    day.backgroundRate = 1.25;
    day.meals = {{11, QTime(7, 30), 260, 110, 60},
                 {12, QTime(12, 45), 340, 260, 180},
                 {13, QTime(19, 15), 310, 270, 170}};
    day.activities = {{21, QTime(8, 0), QTime(8, 30), 120},
                      {22, QTime(17, 30), QTime(18, 30), 480}};
    return day;
}

/// Midnight and 23:59, no calories, negative ones, one minute of 500, three deep.
inline daychart::DayData oddDay()
{
    daychart::DayData day;
    day.backgroundRate = 1.25;
    day.meals = {{11, QTime(0, 0), 200, 100, 50},
                 {12, QTime(12, 0), 0, 0, 0},
                 {13, QTime(12, 5), -100, -40, -30},
                 {14, QTime(14, 5), 100, -60, 30},
                 {15, QTime(23, 59), 150, 90, 70}};
    day.activities = {
        {21, QTime(6, 0), QTime(6, 1), 500},    {22, QTime(9, 0), QTime(11, 0), 400},
        {23, QTime(9, 30), QTime(10, 30), 300}, {24, QTime(10, 0), QTime(12, 0), 200},
        {25, QTime(15, 0), QTime(16, 0), -120}, {26, QTime(23, 58), QTime(23, 59), 0}};
    return day;
}

inline daychart::DayData largeDay()
{
    daychart::DayData day = typicalDay();
    day.meals.push_back({14, QTime(20, 0), 15000, 10000, 5000});
    day.activities.push_back({23, QTime(21, 0), QTime(21, 1), 30000});
    return day;
}

/// Forty items within the given minutes from six o'clock on.
inline daychart::DayData crowdedDay(int minutes)
{
    daychart::DayData day;
    day.backgroundRate = 1.25;
    QRandomGenerator random(5);
    for (int i = 0; i < 25; ++i)
        day.meals.push_back({i + 1, daychart::timeOf(360 + i * minutes / 25), random.bounded(300),
                             random.bounded(200), random.bounded(100)});
    for (int i = 0; i < 15; ++i) {
        const int begin = 360 + i * minutes / 15;
        day.activities.push_back({i + 1, daychart::timeOf(begin),
                                  daychart::timeOf(begin + 1 + random.bounded(90)),
                                  random.bounded(500)});
    }
    return day;
}

/// Text 16 high of which every character is 8 wide, more in larger roles.
inline daychart::TextMetrics metrics(double scale = 1)
{
    return {16 * scale, 22 * scale, [scale](const QString &text, daychart::TextRole role) {
                const double width = role == daychart::TextRole::Figure ? 11 : 8;
                return scale * width * double(text.size());
            }};
}

inline daychart::ChartTexts texts(bool clock24 = true)
{
    return {QLocale::c(), clock24};
}

} // namespace samples
