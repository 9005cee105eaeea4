// The period that progress is looked at, and whether the journal holds enough in it.
#pragma once

#include "data/deData.h"

#include <QDate>

namespace progress {

/// Both days belong to it.
struct Period
{
    QDate dateFrom;
    QDate dateTo;
};

/// From a day to the same day number 1, 3 or 6 calendar months on, or the last day of that month.
Period periodOfMonths(QDate dateFrom, qint16 months);

/// The first and the last day with any measurement, activity or meal; null where there is none.
struct Coverage
{
    QDate minDt;
    QDate maxDt;
    bool isEnough = false;
};

/// Whether the data span at least three tenths of the period.
Coverage checkCoverage(deData &data, const Period &period);

/// Whether every day from the first to the last has a meal or an activity, and what chkBodyContig
/// says of the measurements; false without data.
bool checkContiguity(deData &data, const Coverage &coverage);

} // namespace progress
