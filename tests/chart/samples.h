// Days to draw, from none to too much.
#pragma once

#include "chart/daydata.h"

#include <QRandomGenerator>

namespace samples {

inline daychart::DayData typicalDay()
{
    return {1.25,
            {{11, QTime(7, 30), 260, 110, 60},
             {12, QTime(12, 45), 340, 260, 180},
             {13, QTime(19, 15), 310, 270, 170}},
            {{21, QTime(8, 0), QTime(8, 30), 120}, {22, QTime(17, 30), QTime(18, 30), 480}}};
}

/// Midnight and 23:59, no calories, negative ones, one minute of 500, three deep.
inline daychart::DayData oddDay()
{
    return {1.25,
            {{11, QTime(0, 0), 200, 100, 50},
             {12, QTime(12, 0), 0, 0, 0},
             {13, QTime(12, 5), -100, -40, -30},
             {14, QTime(14, 5), 100, -60, 30},
             {15, QTime(23, 59), 150, 90, 70}},
            {{21, QTime(6, 0), QTime(6, 1), 500},
             {22, QTime(9, 0), QTime(11, 0), 400},
             {23, QTime(9, 30), QTime(10, 30), 300},
             {24, QTime(10, 0), QTime(12, 0), 200},
             {25, QTime(15, 0), QTime(16, 0), -120},
             {26, QTime(23, 58), QTime(23, 59), 0}}};
}

/// Forty items within the given minutes from six o'clock on.
inline daychart::DayData crowdedDay(int minutes)
{
    using daychart::timeOf;
    daychart::DayData day = {1.25, {}, {}};
    QRandomGenerator random(5);
    for (int i = 0; i < 25; ++i)
        day.meals.push_back({i + 1, timeOf(360 + i * minutes / 25), random.bounded(300),
                             random.bounded(200), random.bounded(100)});
    for (int i = 0; i < 15; ++i) {
        const int begin = 360 + i * minutes / 15;
        const int end = begin + 1 + random.bounded(90);
        day.activities.push_back({i + 1, timeOf(begin), timeOf(end), random.bounded(500)});
    }
    return day;
}

} // namespace samples
