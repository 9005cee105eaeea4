#include "progress/progressperiod.h"

using namespace Qt::Literals;

namespace progress {

namespace {

constexpr double leastCoverage = 0.3;
constexpr int mostDaysBetweenMeasurements = 3;

} // namespace

Period periodOfMonths(QDate dateFrom, qint16 months)
{
    return {dateFrom, dateFrom.addMonths(months)};
}

Coverage checkCoverage(deData &data, const Period &period)
{
    Coverage coverage;
    Recordset &dates = data.rschkMinMaxdate;
    dates.reopen({Value(period.dateFrom), Value(period.dateTo)});
    if (!dates.isEof() && !dates.isNull("minDt"_L1) && !dates.isNull("maxDt"_L1)) {
        coverage.minDt = dates.date("minDt"_L1);
        coverage.maxDt = dates.date("maxDt"_L1);
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
    const bool isCounted = !count.isEof() && !count.isNull("days"_L1);
    const qint64 days = isCounted ? count.integer("days"_L1) : 0;
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
