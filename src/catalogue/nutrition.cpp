#include "catalogue/nutrition.h"

#include <algorithm>
#include <array>

namespace {

// The sum of three decimals; it overflows only when the sum itself is out of range, because the
// least and the greatest are added first.
Currency sumOf(Currency a, Currency b, Currency c)
{
    std::array terms{a, b, c};
    std::sort(terms.begin(), terms.end());
    return terms[0] + terms[2] + terms[1];
}

} // namespace

std::optional<CaloriesByNutrient> caloriesByNutrient(Currency calories, Currency fat,
                                                     Currency carbohydrate, Currency protein)
{
    const double weightedFat = fat.toDouble() * 4.5;
    const Currency weightedProtein = protein * 2;
    const Currency sum =
        sumOf(Currency::fromDouble(weightedFat), weightedProtein, carbohydrate * 2);
    if (sum == Currency())
        return std::nullopt;

    // Shares are taken in double precision, quotient first, and rounded once, to four places.
    const auto share = [&](double weighted) {
        return Currency::fromDouble(calories.toDouble() * (weighted / sum.toDouble()));
    };
    CaloriesByNutrient parts;
    parts.fat = share(weightedFat);
    parts.protein = share(weightedProtein.toDouble());
    parts.carbohydrate = sumOf(calories, -parts.fat, -parts.protein);
    return parts;
}
