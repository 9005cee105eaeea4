// The lines, columns and spans of the progress chart, each in its lane.
#pragma once

#include "progress/progressgeometry.h"

namespace progress {

/// One line in a lane whose scale is known.
SeriesLine seriesLine(const DaySeries &days, Series series, const Lane &lane,
                      const DayScale &scale);

std::vector<BalanceColumn> balanceColumns(const DaySeries &days, const Lane &lane,
                                          const DayScale &scale, double widest);

/// Strips of that height around the zero line, one for each run of days without calories.
std::vector<QRectF> notRecordedStrips(const DaySeries &days, const Lane &lane,
                                      const DayScale &scale, double height);

/// The notes clipped to the period. A bar is at least leastWidth wide; a letter of letterWidth has
/// room where it doesn't touch the one before.
std::vector<NoteSpan> noteSpans(const DaySeries &days, const QRectF &strip, const QRectF &plot,
                                const DayScale &scale, double leastWidth, double letterWidth);

} // namespace progress
