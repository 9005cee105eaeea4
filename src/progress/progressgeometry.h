// Where everything of the progress chart stands. Computed once from the series and the size, read
// by the painting and by what follows the pointer.
#pragma once

#include "plot/placedtext.h"
#include "progress/progressscale.h"

#include <QLineF>

namespace progress {

using plot::PlacedText;
using plot::TextMetrics;
using plot::TextRole;
using plot::Tone;

/// Days side by side, counted from 1.
struct DayScale
{
    double left = 0;
    double dayWidth = 1;
    qint16 days = 1;

    double x(qint16 day) const { return left + (day - 1) * dayWidth; }
    double center(qint16 day) const { return x(day) + dayWidth / 2; }
    double right() const { return left + days * dayWidth; }
    /// The day at a place, the first or last one where it is beyond them.
    qint16 dayAt(double x) const;
};

struct Mark
{
    enum class Kind
    {
        Measured,
        FilledIn,
        AboveScale, ///< filled in, and beyond the scale of the measured values
        BelowScale
    };

    qint16 day;
    Kind kind;
    QPointF at;
};

/// One of the lines: a mark for each known day, joined where no day between is unknown.
struct SeriesLine
{
    Series series;
    std::vector<Mark> marks;
    std::vector<QLineF> measured; ///< from one measured day to the next day
    std::vector<QLineF> bridges;  ///< between the measured days around a filled-in gap
    PlacedText label;             ///< at the end: what it is and its last value
};

/// Through the averages of days that follow each other.
using TrendLine = std::vector<QPointF>;

/// Across the plot at the height of a goal.
struct TargetLine
{
    Series series;
    QLineF line;
};

struct BalanceColumn
{
    qint16 day;
    QRectF rect;
    bool isSurplus;
    PlacedText value; ///< beyond its end, where there is room
};

/// A scale with its title and legend, the plot below them.
struct ProgressLane
{
    QRectF area;
    SteppedScale scale;
    std::vector<double> grid; ///< heights of the labelled values
};

enum class LegendKind
{
    Line,
    Measured,
    FilledIn,
    BeyondScale,
    Trend,
    Target,
    Surplus,
    Deficit,
    Average,
    NotRecorded
};

struct LegendEntry
{
    LegendKind kind;
    Series series; ///< of a Line
    QRectF sample;
};

/// A note clipped to the period.
struct NoteSpan
{
    qint16 firstDay;
    qint16 lastDay;
    QRectF bar;   ///< in the strip of the notes, which has two rows where notes are many
    QRectF reach; ///< through all lanes
    QString letter;
    bool hasRoom = false; ///< for the letter, which stands in the middle of the bar
};

struct ProgressGeometry
{
    QRectF area;
    double unit = 16; ///< height of a line of text, from which lines and gaps are sized
    DayScale days;
    QRectF plot;         ///< all lanes, from the strip of the notes down to the dates
    double lanesTop = 0; ///< of the plot without the strip
    bool isEmpty = false;

    ProgressLane weight;
    ProgressLane girths;
    ProgressLane balance;
    std::vector<SeriesLine> lines;
    std::vector<TrendLine> trend;    ///< of the weight, a line for each run of days that have one
    std::vector<TargetLine> targets; ///< those on the scale
    std::vector<BalanceColumn> columns;
    std::vector<QRectF> notRecorded; ///< strips on the zero line where calories are missing
    double averageY = 0;             ///< of the balance; drawn where hasAverage
    std::vector<QLineF> averageLine; ///< broken where values of columns stand
    bool hasAverage = false;

    std::vector<NoteSpan> notes;
    std::vector<double> weekLines;
    std::vector<double> monthLines;

    std::vector<LegendEntry> legend;
    std::vector<PlacedText> texts;

    const ProgressLane &laneOf(Series series) const
    {
        return series == Series::Weight ? weight : girths;
    }
    /// The note whose bar is there.
    std::optional<size_t> noteAt(QPointF place) const;
};

} // namespace progress
