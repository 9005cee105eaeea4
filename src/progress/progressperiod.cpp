#include "progress/progressperiod.h"

#include "session/typeddatetime.h"

#include <algorithm>

namespace progress {

namespace {

constexpr double leastCoverage = 0.3;
constexpr int mostDaysBetweenMeasurements = 3;

} // namespace

Period periodOfMonths(QDate dateFrom, qint16 months)
{
    return {dateFrom, dateFrom.addMonths(months)};
}

PeriodSteps::PeriodSteps(const Period &chosen)
    : m_chosen(chosen)
    , m_months(std::max(1, 12 * (chosen.dateTo.year() - chosen.dateFrom.year()) +
                               chosen.dateTo.month() - chosen.dateFrom.month()))
{
}

bool PeriodSteps::hasPrevious() const
{
    return at(m_step - 1).dateFrom >= earliestDay;
}

Period PeriodSteps::at(int step) const
{
    if (step == 0)
        return m_chosen;
    return {m_chosen.dateFrom.addMonths(step * m_months),
            m_chosen.dateFrom.addMonths((step + 1) * m_months)};
}

Coverage checkCoverage(deData &data, const Period &period)
{
    Coverage coverage;
    Recordset &dates = data.rschkMinMaxdate;
    dates.reopen({Value(period.dateFrom), Value(period.dateTo)});
    if (!dates.isEof() && !dates.isNull(commands::minDt) && !dates.isNull(commands::maxDt)) {
        coverage.minDt = dates.date(commands::minDt);
        coverage.maxDt = dates.date(commands::maxDt);
        const auto covered = double(coverage.minDt.daysTo(coverage.maxDt));
        coverage.isEnough =
            covered >= double(period.dateFrom.daysTo(period.dateTo)) * leastCoverage;
    }
    dates.close();
    return coverage;
}

bool checkContiguity(deData &data, const Coverage &coverage)
{
    if (coverage.minDt.isNull() || coverage.maxDt.isNull())
        return false;

    Recordset &count = data.rschkCaloriesDays;
    count.reopen({Value(coverage.minDt), Value(coverage.maxDt)});
    const bool isCounted = !count.isEof() && !count.isNull(commands::days);
    const qint64 days = isCounted ? count.integer(commands::days) : 0;
    count.close();
    if (!isCounted || days < coverage.minDt.daysTo(coverage.maxDt) + 1)
        return false;

    Recordset &isolated = data.rschkBodyContig;
    isolated.reopen(
        {Value(coverage.minDt), Value(coverage.maxDt), Value(mostDaysBetweenMeasurements)});
    const bool isContiguous = isolated.isEof();
    isolated.close();
    return isContiguous;
}

} // namespace progress
