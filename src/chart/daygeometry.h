// Where everything of the daily chart stands. Computed once from the day's data and the size,
// read by the painting and by the hit-testing.
#pragma once

#include "chart/chartparts.h"
#include "chart/timescale.h"
#include "plot/placedtext.h"
#include "plot/scales.h"

#include <QLineF>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>
#include <vector>

namespace daychart {

using plot::PlacedText;
using plot::TextMetrics;
using plot::TextRole;
using plot::Tone;
using plot::ValueScale;

/// A sample of a fill or line beside its name.
struct Swatch
{
    QRectF rect;
    Part part = Part::Balance;
};

struct LaneGeometry
{
    QRectF area;   ///< between the two midnights; where no item is, a free place
    QRectF header; ///< caption and legend, left of the axis
    QRectF figure; ///< the lane's total in the line of figures
    ValueScale scale;
    std::vector<double> gridLines; ///< heights of the labelled values
};

/// One meal; the same index as in the day's data.
struct MealColumn
{
    QRectF rect;
    double timeX = 0;        ///< where its time is; the column itself may stand beside
    Nutrients<QRectF> parts; ///< null where there is none
    bool cut = false;        ///< higher than drawn
};

/// One activity; the same index as in the day's data. Where it overlaps others it rises and falls
/// with those below it: segments of constant height, from left to right without a gap.
struct ActivityBlock
{
    std::vector<QRectF> segments;
    QRectF bounds;
    bool cut = false;      ///< higher than drawn
    bool negative = false; ///< takes away from what is burnt; drawn hollow
};

struct ItemLabel
{
    int item = 0;
    PlacedText text;
};

/// The present minute, a line down both lanes.
struct NowMark
{
    double x = 0;
    QPointF balance;                 ///< of the balance there; what follows lies ahead
    std::vector<QLineF> pieces;      ///< from top to bottom, with gaps for the texts in its way
    std::optional<PlacedText> label; ///< the time beside it, where there is room
};

struct DayGeometry
{
    QRectF area;
    double unit = 16; ///< height of a line of text, from which lines and gaps are sized
    TimeScale time;
    QRectF timeAxis; ///< the strip of the hours' labels
    std::vector<double> hourLines;
    std::vector<double> hourMarks; ///< every hour, when there is room

    LaneGeometry meals;
    LaneGeometry activities;
    std::vector<MealColumn> columns;
    std::vector<ActivityBlock> blocks;
    std::vector<ItemLabel> mealLabels;
    std::vector<ItemLabel> activityLabels;
    QRectF band; ///< the background burn

    double balanceZeroY = 0;
    std::vector<QPointF> balance;
    std::vector<double> balanceMarks; ///< heights of the labelled balances
    PlacedText balanceEnd;
    std::optional<NowMark> now; ///< on the current day

    std::vector<Swatch> swatches;
    std::vector<PlacedText> texts;
    std::vector<PlacedText> hints; ///< what a click would do in an empty lane; not for paper

    const LaneGeometry &lane(Lane which) const { return which == Lane::Meals ? meals : activities; }
};

} // namespace daychart
