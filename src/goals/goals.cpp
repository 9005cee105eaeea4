#include "goals/goals.h"

#include "settings/units.h"

#include <cmath>

using namespace Qt::Literals;

namespace {

const QString unitsKey = u"Goals/Measurement"_s;
const QString weightKey = u"Goals/Weight"_s;
const std::array<QString, Goals::girthCount> girthKeys = {u"Goals/Breast"_s, u"Goals/Waist"_s,
                                                          u"Goals/Hips"_s};
const QString dateKey = u"Goals/Date"_s;
const QString budgetKey = u"Goals/DailyBudget"_s;
const QString deficitKey = u"Goals/DailyDeficit"_s;

std::optional<double> numberUpTo(double most, const QString &text)
{
    bool isNumber = false;
    const double number = text.toDouble(&isNumber);
    return isNumber && number > 0 && number <= most ? std::optional(number) : std::nullopt;
}

std::optional<int> caloriesOf(const QString &text)
{
    bool isNumber = false;
    const int calories = text.toInt(&isNumber);
    return isNumber && calories > 0 && calories <= DailyBudget::mostCalories
               ? std::optional(calories)
               : std::nullopt;
}

// All digits: what is read again is what was set.
QString textOf(const std::optional<double> &number)
{
    return number ? QString::number(*number, 'g', QLocale::FloatingPointShortest) : QString();
}

void convert(std::optional<double> &value, double factor)
{
    if (value)
        value = std::round(*value * factor * 10) / 10;
}

} // namespace

Goals Goals::in(bool metric) const
{
    Goals goals = *this;
    if (metric == isMetric)
        return goals;
    // The factors of the stored measurements, so that a girth that was reached stays so.
    const auto factor = [metric](Currency toMetric) {
        return metric ? toMetric.toDouble() : 1 / toMetric.toDouble();
    };
    convert(goals.weight, factor(units::LbToKg));
    for (std::optional<double> &girth : goals.girths)
        convert(girth, factor(units::InchToCm));
    goals.isMetric = metric;
    return goals;
}

Goals goalsOf(const Installation &installation)
{
    const QMap<QString, QString> kept = installation.values(); // read for every day shown
    Goals goals;
    goals.isMetric = kept.value(unitsKey) != units::codeOf(false);
    goals.weight = numberUpTo(Goals::mostWeight, kept.value(weightKey));
    for (size_t i = 0; i < girthKeys.size(); ++i)
        goals.girths.at(i) = numberUpTo(Goals::mostGirth, kept.value(girthKeys.at(i)));
    goals.date = QDate::fromString(kept.value(dateKey), Qt::ISODate);
    if (const auto fixed = caloriesOf(kept.value(budgetKey)))
        goals.budget = DailyBudget{DailyBudget::Kind::Fixed, *fixed};
    else if (const auto deficit = caloriesOf(kept.value(deficitKey)))
        goals.budget = DailyBudget{DailyBudget::Kind::BurnLessDeficit, *deficit};
    return goals;
}

bool keepGoals(Installation &installation, const Goals &goals)
{
    const auto budgetText = [&goals](DailyBudget::Kind kind) {
        return goals.budget && goals.budget->kind == kind ? QString::number(goals.budget->calories)
                                                          : QString();
    };
    QMap<QString, QString> values = {
        {unitsKey, units::codeOf(goals.isMetric)},
        {weightKey, textOf(goals.weight)},
        {dateKey, goals.date.toString(Qt::ISODate)},
        {budgetKey, budgetText(DailyBudget::Kind::Fixed)},
        {deficitKey, budgetText(DailyBudget::Kind::BurnLessDeficit)},
    };
    for (size_t i = 0; i < girthKeys.size(); ++i)
        values[girthKeys.at(i)] = textOf(goals.girths.at(i));
    return installation.setValues(values);
}
