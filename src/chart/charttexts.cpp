#include "chart/charttexts.h"

#include "chart/daybalance.h"

#include <cmath>

namespace daychart {

QString ChartTexts::time(QTime time) const
{
    return m_locale.toString(time, m_clock24 ? QStringLiteral("HH:mm") : QStringLiteral("h:mm ap"));
}

QString ChartTexts::hour(int minute) const
{
    if (m_clock24)
        return QStringLiteral("%1:00").arg(minute / 60, 2, 10, QLatin1Char('0'));
    return m_locale.toString(timeOf(minute % minutesPerDay), QStringLiteral("h ap"));
}

QString ChartTexts::tick(double value, double step) const
{
    const int decimals = step < 1 ? int(std::ceil(-std::log10(step) - 1e-9)) : 0;
    return m_locale.toString(value, 'f', decimals);
}

QString ChartTexts::balance(qint64 value) const
{
    return (value > 0 ? m_locale.positiveSign() : QString()) + m_locale.toString(value);
}

QString ChartTexts::energy(qint64 calories) const
{
    return tr("%1 kcal").arg(number(calories));
}

QString ChartTexts::caption(Lane lane) const
{
    return lane == Lane::Meals ? tr("Meals") : tr("Activities");
}

QString ChartTexts::unit(Lane lane) const
{
    return lane == Lane::Meals ? tr("kcal") : tr("kcal per minute");
}

QString ChartTexts::part(Part part) const
{
    switch (part) {
    case Part::Activity:
        return tr("Activity");
    case Part::Background:
        return tr("Background");
    case Part::Balance:
        return tr("Balance");
    case Part::Nutrients:
        break;
    }
    return Nutrients<QString>{tr("Fat"), tr("Carbohydrate"), tr("Protein")}[nutrientOf(part)];
}

QString ChartTexts::eaten() const
{
    return tr("Eaten");
}

QString ChartTexts::burnt() const
{
    return tr("Burnt");
}

QString ChartTexts::emptyHint(Lane lane) const
{
    return lane == Lane::Meals ? tr("No meals yet. Click at a time to add one.")
                               : tr("No activities yet. Click at a time to add one.");
}

QString ChartTexts::mealName(const MealItem &meal) const
{
    return tr("Meal at %1, %2: carbohydrate %3, fat %4, protein %5")
        .arg(time(meal.time), energy(meal.calories()),
             number(meal.byNutrient[Nutrient::Carbohydrate]),
             number(meal.byNutrient[Nutrient::Fat]), number(meal.byNutrient[Nutrient::Protein]));
}

QString ChartTexts::activityName(const ActivityItem &activity) const
{
    return tr("Activity from %1 to %2, %3")
        .arg(time(activity.begin), time(activity.end), energy(activity.calories));
}

QString ChartTexts::newItemName(Lane lane, QTime at) const
{
    return (lane == Lane::Meals ? tr("New meal at %1") : tr("New activity at %1")).arg(time(at));
}

QString ChartTexts::openListName(Lane lane) const
{
    return lane == Lane::Meals ? tr("Meals: open the list") : tr("Activities: open the list");
}

QString ChartTexts::daySummary(const DayData &day) const
{
    const DayFigures figures = dayFigures(day);
    const QString balance = figures.balance() < 0
                                ? tr("%1 less eaten than burnt").arg(energy(-figures.balance()))
                                : tr("%1 more eaten than burnt").arg(energy(figures.balance()));
    const QString sums =
        tr("Eaten %1, burnt %2 of which %3 by activities, balance %4. Meals: %5. Activities: %6.")
            .arg(energy(figures.eaten()), energy(figures.burnt()), energy(figures.activities),
                 balance, number(qint64(day.mealCount())), number(qint64(day.activityCount())));
    return (QStringList(sums) + notDrawn(day)).join(u' ');
}

QStringList ChartTexts::notDrawn(const DayData &day) const
{
    const QString most = number(qint64(DayData::mostDrawn));
    QStringList sentences;
    if (!day.moreMeals.empty())
        sentences += tr("Drawn: the first %1 of %2 meals. The totals count all.")
                         .arg(most, number(qint64(day.mealCount())));
    if (!day.moreActivities.empty())
        sentences += tr("Drawn: the first %1 of %2 activities. The totals count all.")
                         .arg(most, number(qint64(day.activityCount())));
    return sentences;
}

QString ChartTexts::mealTip(const MealItem &meal) const
{
    QString tip = tr("Meal at %1\n%2").arg(time(meal.time), energy(meal.calories()));
    for (const Nutrient n : stackedNutrients)
        tip += tr("\n%1: %2").arg(part(partOf(n)), energy(meal.byNutrient[n]));
    return tip;
}

QString ChartTexts::activityTip(const ActivityItem &activity) const
{
    const QString rate = m_locale.toString(activity.caloriesPerMinute(), 'f', 1);
    return tr("Activity from %1 to %2\n%3\n%4 kcal per minute")
        .arg(time(activity.begin), time(activity.end), energy(activity.calories), rate);
}

QString ChartTexts::placeTip(Lane lane, QTime at, double balanceThen) const
{
    return tr("%1\nBalance at that time: %2 kcal")
        .arg(newItemName(lane, at), balance(qRound64(balanceThen)));
}

} // namespace daychart
