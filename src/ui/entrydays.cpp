#include "ui/entrydays.h"

#include "data/deData.h"

#include <QCalendarWidget>
#include <QTextCharFormat>

namespace {

void markMonth(QCalendarWidget &calendar, deData &data, int year, int month)
{
    // The ends of the months beside it are in sight, too.
    const QDate first = QDate(year, month, 1).addDays(-14);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    calendar.setDateTextFormat({}, {});
    try {
        Recordset &days = data.rsDaysWithEntries;
        days.reopenReadable({Value(first), Value(first.addDays(60))});
        for (; !days.isEof(); days.moveNext())
            calendar.setDateTextFormat(days.date(commands::curDate), bold);
        days.close();
    } catch (const StoreError &) {
        // Told by who needs the file.
    }
}

} // namespace

void markEntryDays(QCalendarWidget &calendar, deData &data)
{
    const auto mark = [&calendar, &data](int year, int month) {
        markMonth(calendar, data, year, month);
    };
    QObject::connect(&calendar, &QCalendarWidget::currentPageChanged, &calendar, mark);
    mark(calendar.yearShown(), calendar.monthShown());
}
