// What stands along the foot of the progress chart.
#pragma once

#include "progress/progressperiod.h"

#include <QLocale>

#include <vector>

namespace progress {

/// The part of a calendar month that lies in the period, in days counted from 1.
struct MonthPart
{
    QDate month; ///< a day in it
    qint16 firstDay;
    qint16 lastDay;
};

/// The months of a period from the first to the last.
std::vector<MonthPart> monthsOf(const Period &period);

/// The days of the period on which a week begins in the locale.
std::vector<qint16> weekStarts(const Period &period, const QLocale &locale);

} // namespace progress
