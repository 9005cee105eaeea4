// The lines, columns and spans of the progress chart, each in its lane.
#pragma once

#include "progress/progressgeometry.h"

namespace progress {

/// One line in a lane whose scale is known.
SeriesLine seriesLine(const DaySeries &days, Series series, const ProgressLane &lane,
                      const DayScale &scale);

/// A line for each run of days that have an average; of a day alone, a dash no longer than that.
std::vector<TrendLine> trendLines(const std::vector<std::optional<double>> &averages,
                                  const ProgressLane &lane, const DayScale &scale, double longest);

std::vector<BalanceColumn> balanceColumns(const DaySeries &days, const ProgressLane &lane,
                                          const DayScale &scale, double widest);

/// Strips of that height around the zero line, one for each run of days without calories.
std::vector<QRectF> notRecordedStrips(const DaySeries &days, const ProgressLane &lane,
                                      const DayScale &scale, double height);

/// The strip of the notes and what goes into it.
struct NoteStrip
{
    QRectF area;
    int rows = 1;          ///< the notes take turns in them
    double leastWidth = 1; ///< of a bar
    std::function<double(const QString &)> letterWidth;
};

/// The notes clipped to the period. A letter has room where it doesn't touch the one before in its
/// row.
std::vector<NoteSpan> noteSpans(const DaySeries &days, const NoteStrip &strip, const QRectF &plot,
                                const DayScale &scale);

} // namespace progress
