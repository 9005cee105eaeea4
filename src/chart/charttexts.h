// The words and figures of the daily chart: on it, in its tooltips and for a screen reader.
#pragma once

#include "chart/chartparts.h"
#include "chart/daybalance.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>

namespace daychart {

class ChartTexts
{
    Q_DECLARE_TR_FUNCTIONS(daychart::ChartTexts)

public:
    ChartTexts(const QLocale &locale, bool clock24)
        : m_locale(locale)
        , m_clock24(clock24)
    {
    }

    /// "14:30" or "2:30 pm".
    QString time(QTime time) const;
    /// A full hour on the time axis, minute 0 to 1440: "14:00" or "2 pm"; 1440 is "24:00".
    QString hour(int minute) const;

    QString number(qint64 value) const { return m_locale.toString(value); }
    /// With as many decimals as the steps of an axis need.
    QString tick(double value, double step) const;
    /// With its sign, also when it is positive.
    QString balance(qint64 value) const;
    /// "450 kcal".
    QString energy(qint64 calories) const;

    QString caption(Lane lane) const;
    QString unit(Lane lane) const;
    QString part(Part part) const;
    QString eaten() const;
    QString burnt() const;
    /// Of the balance at the present minute.
    QString soFar() const;
    /// Of what is left of a budget; negative where more was eaten.
    QString left(qint64 calories) const;
    /// What to say in a lane that has no item.
    QString emptyHint(Lane lane) const;

    QString mealName(const MealItem &meal) const;
    QString activityName(const ActivityItem &activity) const;
    QString newItemName(Lane lane, QTime time) const;
    QString openListName(Lane lane) const;
    QString daySummary(const DayData &day) const;
    /// A sentence for each kind of which not all are drawn.
    QStringList notDrawn(const DayData &day) const;

    QString mealTip(const MealItem &meal) const;
    QString activityTip(const ActivityItem &activity) const;
    QString placeTip(Lane lane, QTime time, double balance) const;

private:
    QString what(const ItemWords &words) const;
    QString balanceInWords(qint64 balance) const;
    QString budgetInWords(const Budget &budget, const DayFigures &figures) const;

    QLocale m_locale;
    bool m_clock24;
};

} // namespace daychart
