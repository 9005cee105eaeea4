#include "chart/charttexts.h"

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

QString ChartTexts::soFar() const
{
    return tr("so far");
}

QString ChartTexts::left(qint64 calories) const
{
    return calories < 0 ? tr("Over budget") : tr("Left");
}

QString ChartTexts::emptyHint(Lane lane) const
{
    return lane == Lane::Meals ? tr("No meals yet. Click at a time to add one.")
                               : tr("No activities yet. Click at a time to add one.");
}

/// "Banana, 2 piece"; empty where the item has no name.
QString ChartTexts::what(const ItemWords &words) const
{
    return words.name.isEmpty() || words.quantity.isEmpty()
               ? words.name
               : tr("%1, %2").arg(words.name, words.quantity);
}

QString ChartTexts::mealName(const MealItem &meal) const
{
    const QString figures = tr("Meal at %1, %2: carbohydrate %3, fat %4, protein %5")
                                .arg(time(meal.time), energy(meal.calories()),
                                     number(meal.byNutrient[Nutrient::Carbohydrate]),
                                     number(meal.byNutrient[Nutrient::Fat]),
                                     number(meal.byNutrient[Nutrient::Protein]));
    const QString meant = what(meal.words);
    return meant.isEmpty() ? figures : tr("%1. %2").arg(figures, meant);
}

QString ChartTexts::activityName(const ActivityItem &activity) const
{
    const QString figures =
        tr("Activity from %1 to %2, %3")
            .arg(time(activity.begin), time(activity.end), energy(activity.calories));
    const QString meant = what(activity.words);
    return meant.isEmpty() ? figures : tr("%1. %2").arg(figures, meant);
}

QString ChartTexts::newItemName(Lane lane, QTime at) const
{
    return (lane == Lane::Meals ? tr("New meal at %1") : tr("New activity at %1")).arg(time(at));
}

QString ChartTexts::openListName(Lane lane) const
{
    return lane == Lane::Meals ? tr("Meals: open the list") : tr("Activities: open the list");
}

QString ChartTexts::balanceInWords(qint64 balance) const
{
    return balance < 0 ? tr("%1 less eaten than burnt").arg(energy(-balance))
                       : tr("%1 more eaten than burnt").arg(energy(balance));
}

QString ChartTexts::daySummary(const DayData &day) const
{
    const DayFigures figures = dayFigures(day);
    QStringList sentences = {
        tr("Eaten %1, burnt %2 of which %3 by activities, balance %4. Meals: %5. Activities: %6.")
            .arg(energy(figures.eaten()), energy(figures.burnt()), energy(figures.activities),
                 balanceInWords(figures.balance()), number(qint64(day.mealCount())),
                 number(qint64(day.activityCount())))};
    if (day.now)
        sentences += tr("So far, at %1, %2.")
                         .arg(time(timeOf(*day.now)),
                              balanceInWords(qRound64(balanceAt(balanceCurve(day), *day.now))));
    if (day.budget)
        sentences += budgetInWords(*day.budget, figures);
    return (sentences + notDrawn(day)).join(u' ');
}

QString ChartTexts::budgetInWords(const Budget &budget, const DayFigures &figures) const
{
    const qint64 most = caloriesOf(budget, figures);
    const qint64 left = most - figures.eaten();
    return left < 0
               ? tr("Of a budget of %1, %2 too much was eaten.").arg(energy(most), energy(-left))
               : tr("Of a budget of %1, %2 are left.").arg(energy(most), energy(left));
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

// A tooltip whose first line has no markup shows that of the others as it is written.

QString ChartTexts::mealTip(const MealItem &meal) const
{
    QStringList lines = {tr("Meal at %1").arg(time(meal.time)), what(meal.words),
                         energy(meal.calories())};
    for (const Nutrient n : stackedNutrients)
        lines += tr("%1: %2").arg(part(partOf(n)), energy(meal.byNutrient[n]));
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString ChartTexts::activityTip(const ActivityItem &activity) const
{
    const QString rate = m_locale.toString(activity.caloriesPerMinute(), 'f', 1);
    QStringList lines = {tr("Activity from %1 to %2").arg(time(activity.begin), time(activity.end)),
                         what(activity.words), energy(activity.calories),
                         tr("%1 kcal per minute").arg(rate)};
    lines.removeAll(QString());
    return lines.join(u'\n');
}

QString ChartTexts::placeTip(Lane lane, QTime at, double balanceThen) const
{
    return tr("%1\nBalance at that time: %2 kcal")
        .arg(newItemName(lane, at), balance(qRound64(balanceThen)));
}

} // namespace daychart
