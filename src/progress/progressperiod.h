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

/// The chosen period and those of its months before and after it. Each begins on the day on which
/// the one before it ends, as the chosen one would; all of them are counted from that one, so that
/// there and back leads to the same days, also where a month is too short for one of them.
class PeriodSteps
{
public:
    /// The period must be one of periodOfMonths.
    explicit PeriodSteps(const Period &chosen);

    Period current() const { return at(m_step); }
    void move(int steps) { m_step += steps; }
    /// Whether the one before lies within the days that the date pickers go through.
    bool hasPrevious() const;
    /// Whether the next one holds a day up to today that isn't in this one.
    bool hasNext(QDate today) const { return current().dateTo < today; }

private:
    Period at(int step) const;

    Period m_chosen;
    int m_months;
    int m_step = 0;
};

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
