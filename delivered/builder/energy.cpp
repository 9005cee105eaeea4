#include "energy.h"

#include "catalogue.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace delivered {

namespace {

constexpr double alcoholFactor = 7;

double nutrientCalories(const DeliveredMeal &meal)
{
    constexpr Nutrients<int> caloriesPerGram{9, 4, 4};
    return perNutrient([&](Nutrient n) { return caloriesPerGram[n] * meal.grams[n].toDouble(); })
        .sum();
}

bool fits(const DeliveredMeal &meal, double expected)
{
    return std::abs(meal.calories.toDouble() - expected) <= 0.1 * expected + 3;
}

} // namespace

EnergyCheck::EnergyCheck(const QString &path)
{
    const TsvTable table(path, {u"Meal"_s, u"Alcohol"_s, u"Off"_s, u"Reason"_s});
    for (const TsvRow &row : table.rows()) {
        const std::optional<Currency> alcohol = row.optionalDecimal(u"Alcohol"_s);
        const std::optional<Currency> off = row.optionalDecimal(u"Off"_s);
        if (alcohol.has_value() == off.has_value())
            row.refuse(u"Either Alcohol or Off should be given"_s);
        row.text(u"Reason"_s); // never empty
        const double calories = alcohol ? alcoholFactor * alcohol->toDouble() : off->toDouble();
        if (!m_exceptions.try_emplace(row.text(u"Meal"_s), Exception{row, calories}).second)
            row.refuse(u"Meal \"%1\" has a row already"_s.arg(row.text(u"Meal"_s)));
    }
}

void EnergyCheck::check(const TsvRow &row, const DeliveredMeal &meal) const
{
    const double sum = nutrientCalories(meal);
    const auto exception = m_exceptions.find(meal.name);
    const bool excepted = exception != m_exceptions.end();
    const double expected = sum + (excepted ? exception->second.calories : 0);
    if (!fits(meal, expected))
        row.refuse(u"\"%1\" has %2 kcal, but what it holds makes %3"_s.arg(
            meal.name, meal.calories.toText(), QString::number(expected, 'f', 1)));
    if (excepted && fits(meal, sum))
        exception->second.row.refuse(u"Meal \"%1\" fits without this row"_s.arg(meal.name));
}

void EnergyCheck::checkNames(const NameIndex &meals) const
{
    for (const auto &[name, exception] : m_exceptions) {
        if (!meals.find(name))
            exception.row.refuse(u"Meal \"%1\" is not in the catalogue"_s.arg(name));
    }
}

} // namespace delivered
