#include "chart/navigation.h"

#include <cmath>
#include <numeric>

namespace daychart {

namespace {

using Kind = Target::Kind;

double beginOf(const DayData &day, Lane lane, int item)
{
    return lane == Lane::Meals ? minuteOf(day.meals[size_t(item)].time)
                               : day.activities[size_t(item)].beginMinute();
}

std::vector<Target> laneTargets(const DayData &day, Lane lane)
{
    std::vector<int> items(lane == Lane::Meals ? day.meals.size() : day.activities.size());
    std::iota(items.begin(), items.end(), 0);
    std::stable_sort(items.begin(), items.end(),
                     [&](int a, int b) { return beginOf(day, lane, a) < beginOf(day, lane, b); });
    std::vector<Target> targets = {{Kind::Caption, lane}};
    for (const int item : items)
        targets.push_back({Kind::Item, lane, item});
    targets.push_back({Kind::FreePlace, lane});
    return targets;
}

Target counterpart(const DayData &day, const Cursor &cursor)
{
    const Lane other = cursor.target.lane == Lane::Meals ? Lane::Activities : Lane::Meals;
    if (cursor.target.kind != Kind::Item)
        return {cursor.target.kind, other};
    Target nearest = {Kind::Caption, other};
    double distance = minutesPerDay;
    for (const Target &target : laneTargets(day, other)) {
        if (target.kind != Kind::Item)
            continue;
        const double away = std::abs(beginOf(day, other, target.item) - cursor.minute);
        if (away < distance) {
            nearest = target;
            distance = away;
        }
    }
    return nearest;
}

} // namespace

Cursor placedOn(const DayData &day, const Target &target, int minute)
{
    if (target.kind == Kind::Item)
        minute = int(beginOf(day, target.lane, target.item));
    return {target, std::clamp(minute, 0, minutesPerDay - 1)};
}

Cursor stepped(const DayData &day, const Cursor &cursor, WalkStep step)
{
    if (cursor.target.kind == Kind::None)
        return placedOn(day, {Kind::Caption, Lane::Meals}, cursor.minute);
    if (step == WalkStep::OtherLane)
        return placedOn(day, counterpart(day, cursor), cursor.minute);

    const std::vector<Target> targets = laneTargets(day, cursor.target.lane);
    const auto here = std::find(targets.begin(), targets.end(), cursor.target);
    size_t index = here == targets.end() ? 0 : size_t(here - targets.begin());
    switch (step) {
    case WalkStep::Previous:
        index = index > 0 ? index - 1 : 0;
        break;
    case WalkStep::Next:
        index = std::min(index + 1, targets.size() - 1);
        break;
    case WalkStep::First:
        index = 0;
        break;
    default:
        index = targets.size() - 1;
        break;
    }
    return placedOn(day, targets[index], cursor.minute);
}

Cursor shifted(const Cursor &cursor, int minutes)
{
    int minute = std::max(0, cursor.minute + minutes);
    if (std::abs(minutes) == 5 && minute % 5 != 0)
        minute -= minutes > 0 ? minute % 5 : minute % 5 - 5;
    return {{Kind::FreePlace, cursor.target.lane}, std::clamp(minute, 0, minutesPerDay - 1)};
}

std::vector<Target> allTargets(const DayData &day)
{
    std::vector<Target> targets = laneTargets(day, Lane::Meals);
    const std::vector<Target> below = laneTargets(day, Lane::Activities);
    targets.insert(targets.end(), below.begin(), below.end());
    return targets;
}

} // namespace daychart
