#include "chart/hittest.h"

#include <cmath>

namespace daychart {

namespace {

bool labelContains(const std::vector<ItemLabel> &labels, int item, QPointF point)
{
    return std::any_of(labels.begin(), labels.end(), [&](const ItemLabel &label) {
        return label.item == item && label.text.rect.contains(point);
    });
}

bool blockContains(const ActivityBlock &block, QPointF point, double slack)
{
    return std::any_of(block.segments.begin(), block.segments.end(), [&](const QRectF &segment) {
        return segment.adjusted(-slack, -slack, slack, slack).contains(point);
    });
}

int mealAt(const DayGeometry &geometry, QPointF point, double slack)
{
    for (size_t i = 0; i < geometry.columns.size(); ++i) {
        const QRectF &rect = geometry.columns[i].rect;
        if (rect.adjusted(-slack, -slack, slack, slack).contains(point))
            return int(i);
    }
    return -1;
}

int activityAt(const DayGeometry &geometry, QPointF point, double slack)
{
    for (size_t i = 0; i < geometry.blocks.size(); ++i) {
        if (blockContains(geometry.blocks[i], point, slack))
            return int(i);
    }
    return -1;
}

/// Exactly on an item, else on its label, else just beside it.
int itemAt(const DayGeometry &geometry, Lane lane, QPointF point)
{
    const bool meals = lane == Lane::Meals;
    const auto find = meals ? mealAt : activityAt;
    if (const int item = find(geometry, point, 0); item >= 0)
        return item;
    const std::vector<ItemLabel> &labels = meals ? geometry.mealLabels : geometry.activityLabels;
    for (const ItemLabel &label : labels) {
        if (labelContains(labels, label.item, point))
            return label.item;
    }
    return find(geometry, point, 0.15 * geometry.unit);
}

} // namespace

Target targetAt(const DayGeometry &geometry, QPointF point)
{
    for (const Lane which : {Lane::Meals, Lane::Activities}) {
        const LaneGeometry &lane = geometry.lane(which);
        if (lane.header.contains(point) || lane.figure.contains(point))
            return {Target::Kind::Caption, which};
        if (!lane.area.contains(point))
            continue;
        if (const int item = itemAt(geometry, which, point); item >= 0)
            return {Target::Kind::Item, which, item};
        return {Target::Kind::FreePlace, which};
    }
    return {};
}

int minuteAt(const DayGeometry &geometry, double x)
{
    const int grid = geometry.time.minutesPerUnit() > 1.25 ? 5 : 1;
    const double minute = std::clamp(geometry.time.minute(x), 0.0, double(minutesPerDay));
    return std::min(int(std::lround(minute / grid)) * grid, minutesPerDay - 1);
}

QRectF boundsOf(const DayGeometry &geometry, const Target &target)
{
    const LaneGeometry &lane = geometry.lane(target.lane);
    switch (target.kind) {
    case Target::Kind::Item:
        return target.lane == Lane::Meals ? geometry.columns[size_t(target.item)].rect
                                          : geometry.blocks[size_t(target.item)].bounds;
    case Target::Kind::Caption:
        return lane.header;
    case Target::Kind::FreePlace:
        return lane.area;
    case Target::Kind::None:
        break;
    }
    return {};
}

} // namespace daychart
