#include "progress/timemarks.h"

namespace progress {

std::vector<MonthPart> monthsOf(const Period &period)
{
    std::vector<MonthPart> months;
    for (QDate first = period.dateFrom; first <= period.dateTo;) {
        const QDate endOfMonth(first.year(), first.month(), first.daysInMonth());
        const QDate last = qMin(endOfMonth, period.dateTo);
        months.push_back({first, qint16(period.dateFrom.daysTo(first) + 1),
                          qint16(period.dateFrom.daysTo(last) + 1)});
        first = endOfMonth.addDays(1);
    }
    return months;
}

std::vector<qint16> weekStarts(const Period &period, const QLocale &locale)
{
    std::vector<qint16> days;
    const int offset = (int(locale.firstDayOfWeek()) - period.dateFrom.dayOfWeek() + 7) % 7;
    const qint64 nDays = period.dateFrom.daysTo(period.dateTo) + 1;
    for (qint64 day = offset + 1; day <= nDays; day += 7)
        days.push_back(qint16(day));
    return days;
}

} // namespace progress
