// What lies under a point of the chart.
#pragma once

#include "chart/daygeometry.h"

namespace daychart {

/// Something that can be chosen. A free place is a lane without a time: the time belongs to the
/// pointer or the keyboard's time cursor.
struct Target
{
    enum class Kind
    {
        None,
        Item,
        Caption,
        FreePlace
    };

    Kind kind = Kind::None;
    Lane lane = Lane::Meals;
    int item = -1; ///< index into the lane's items; only of Kind::Item

    bool operator==(const Target &) const = default;
    bool isItem(Lane which) const { return kind == Kind::Item && lane == which; }
};

/// Items come before the free place around them; an item too small to meet is met a little beside
/// it too. A lane's header and its total in the line of figures are its caption.
Target targetAt(const DayGeometry &geometry, QPointF point);

/// The minute of the day at x, 0 to 1439: the nearest one, or the nearest multiple of five where
/// the scale is too coarse to point at single minutes.
int minuteAt(const DayGeometry &geometry, double x);

/// The outline of a target, for tooltips and screen readers; of a free place, its lane.
QRectF boundsOf(const DayGeometry &geometry, const Target &target);

} // namespace daychart
