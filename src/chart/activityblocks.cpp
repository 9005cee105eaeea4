#include "chart/activityblocks.h"

#include "chart/drawnlimit.h"

#include <cmath>

namespace daychart {

namespace {

struct Shown
{
    double begin = 0;
    double end = 0;
    double rate = 0;
};

double limitOf(const DayData &day)
{
    std::vector<double> magnitudes;
    for (const ActivityItem &activity : day.activities)
        magnitudes.push_back(std::abs(activity.caloriesPerMinute()));
    return drawnLimit(std::move(magnitudes));
}

Shown shownOf(const ActivityItem &activity, double shortest, double lowest, double limit)
{
    Shown shown = {activity.beginMinute(), activity.endMinute(), activity.caloriesPerMinute()};
    const double missing = std::min(shortest, double(minutesPerDay)) - (shown.end - shown.begin);
    if (missing > 0) {
        shown.begin = std::max(0.0, shown.begin - missing / 2);
        shown.end = shown.begin + std::min(shortest, double(minutesPerDay));
        const double beyond = std::max(0.0, shown.end - minutesPerDay);
        shown.begin -= beyond;
        shown.end -= beyond;
    }
    const double magnitude = std::max(std::min(std::abs(shown.rate), limit), lowest);
    shown.rate = shown.rate < 0 ? -magnitude : magnitude;
    return shown;
}

void append(std::vector<BurnSegment> &segments, const BurnSegment &next)
{
    if (!segments.empty() && segments.back().low == next.low && segments.back().high == next.high)
        segments.back().end = next.end;
    else
        segments.push_back(next);
}

} // namespace

BurnStack stackedBurn(const DayData &day, double shortest, double lowest)
{
    const double limit = limitOf(day);
    std::vector<Shown> shown;
    std::vector<double> borders;
    BurnStack stack;
    for (const ActivityItem &activity : day.activities) {
        shown.push_back(shownOf(activity, shortest, lowest, limit));
        borders.insert(borders.end(), {shown.back().begin, shown.back().end});
        stack.cut.push_back(std::abs(activity.caloriesPerMinute()) > limit);
        stack.negative.push_back(activity.calories < 0);
    }
    std::sort(borders.begin(), borders.end());
    borders.erase(std::unique(borders.begin(), borders.end()), borders.end());

    stack.activities.resize(shown.size());
    stack.low = std::min(0.0, day.backgroundRate);
    stack.high = std::max(0.0, day.backgroundRate);
    for (size_t b = 0; b + 1 < borders.size(); ++b) {
        double top = day.backgroundRate;
        double bottom = day.backgroundRate;
        for (size_t i = 0; i < shown.size(); ++i) {
            if (shown[i].begin > borders[b] || shown[i].end < borders[b + 1])
                continue;
            double &edge = shown[i].rate < 0 ? bottom : top;
            const double from = edge;
            edge += shown[i].rate;
            append(stack.activities[i],
                   {borders[b], borders[b + 1], std::min(from, edge), std::max(from, edge)});
        }
        stack.low = std::min(stack.low, bottom);
        stack.high = std::max(stack.high, top);
    }
    return stack;
}

std::vector<ActivityBlock> activityBlocks(const BurnStack &stack, const TimeScale &time,
                                          const ValueScale &scale)
{
    std::vector<ActivityBlock> blocks(stack.activities.size());
    for (size_t i = 0; i < blocks.size(); ++i) {
        blocks[i].cut = stack.cut[i];
        blocks[i].negative = stack.negative[i];
        for (const BurnSegment &segment : stack.activities[i]) {
            const QRectF rect(QPointF(time.x(segment.begin), scale.y(segment.high)),
                              QPointF(time.x(segment.end), scale.y(segment.low)));
            blocks[i].segments.push_back(rect);
            blocks[i].bounds |= rect;
        }
    }
    return blocks;
}

} // namespace daychart
