// Days to draw, from none to too much.
#pragma once

#include "chart/daydata.h"

#include <QRandomGenerator>

namespace samples {

inline daychart::DayData typicalDay()
{
    return {1.25,
            {{11, QTime(7, 30), {110, 260, 60}},
             {12, QTime(12, 45), {260, 340, 180}},
             {13, QTime(19, 15), {270, 310, 170}}},
            {{21, QTime(8, 0), QTime(8, 30), 120}, {22, QTime(17, 30), QTime(18, 30), 480}}};
}

/// Any day: up to forty items over a day, an hour or at once, some without calories, some negative,
/// now and then one that is far larger than all others.
inline daychart::DayData anyDay(quint32 seed)
{
    using daychart::timeOf;
    QRandomGenerator random(seed);
    const auto calories = [&random](int usual) {
        const int kind = random.bounded(20);
        const int value = random.bounded(usual);
        return kind == 0 ? 0 : kind == 1 ? -value : kind == 2 ? 40 * value : value;
    };
    const int first = random.bounded(1440);
    const int span = std::array{1440 - first, 60, 1}[seed % 3];
    daychart::DayData day = {random.bounded(2.0), {}, {}};
    for (int id = random.bounded(26); id > 0; --id)
        day.add(daychart::MealItem{id,
                                   timeOf(first + random.bounded(span)),
                                   {calories(300), calories(200), calories(100)}});
    for (int id = random.bounded(16); id > 0; --id) {
        const int begin = first + random.bounded(span);
        day.add(daychart::ActivityItem{id, timeOf(begin), timeOf(begin + random.bounded(90)),
                                       calories(500)});
    }
    if (seed % 5 < 2)
        day.budget = daychart::Budget{seed % 5 == 0, random.bounded(4000)};
    return day;
}

} // namespace samples
