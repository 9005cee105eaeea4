// Walking through the chart without a pointer.
#pragma once

#include "chart/hittest.h"

namespace daychart {

/// Where the keyboard stands. The minute is the time that a free place would be chosen at; a
/// caption has no time and only remembers it.
struct Cursor
{
    Target target;
    int minute = minutesPerDay / 2;
};

enum class WalkStep
{
    Previous,
    Next,
    First,
    Last,
    OtherLane
};

/// One step in the cursor's lane: its caption, then its items by time, then its free place at the
/// cursor's minute. The other lane is entered at the item nearest in time, or at the same kind of
/// place.
Cursor stepped(const DayData &day, const Cursor &cursor, WalkStep step);

/// The free place of the cursor's lane that many minutes away, within the day. A step of five
/// minutes leads to a multiple of five.
Cursor shifted(const Cursor &cursor, int minutes);

/// The cursor on a target; on an item, its minute is that of the item.
Cursor placedOn(const DayData &day, const Target &target, int minute);

/// All that can be chosen, as it is read: lane by lane, each as in stepped.
std::vector<Target> allTargets(const DayData &day);

} // namespace daychart
