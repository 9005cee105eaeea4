// The weeks of a period in words and figures.
#pragma once

#include "progress/progresstable.h"
#include "progress/progressweeks.h"

namespace progress {

/// The columns of the table of weeks.
enum class WeekColumn
{
    First,
    Days,
    Eaten,
    Burnt,
    Balance,
    Fat,
    Carbohydrate,
    Protein,
    Weight,
    Change,
    Notes
};
QStringList weekHeader(const ProgressTexts &texts);
/// What the header of a column stands for, where it doesn't say it itself.
QString meaningOf(WeekColumn column);

/// A row for each week, with calories as averages per day, and below them averages and sums of the
/// whole period. Figures are rounded so that they add up: eaten less burnt is the balance.
TableText weeksTable(const DaySeries &series, const Weeks &weeks, const ProgressTexts &texts);

} // namespace progress
