#include "catalogue/nutrition.h"

#include <algorithm>

namespace {

constexpr Nutrients<double> weights{4.5, 2.0, 2.0};
constexpr Nutrient takesTheRest = Nutrient::Carbohydrate;

// It overflows only when the sum itself is out of range, because each step leads towards zero or
// all that is left has the sign of the sum.
Currency sumOf(Nutrients<Currency> addends)
{
    std::array terms = addends.values();
    std::sort(terms.begin(), terms.end());
    Currency sum;
    auto least = terms.begin();
    auto greatest = terms.end();
    while (least != greatest)
        sum = sum + (sum < Currency() ? *--greatest : *least++);
    return sum;
}

} // namespace

std::optional<Nutrients<Currency>> caloriesByNutrient(Currency calories,
                                                      const Nutrients<Currency> &grams)
{
    const auto weighted = perNutrient([&](Nutrient n) { return grams[n].toDouble() * weights[n]; });
    const Currency sum = sumOf(weighted.map(&Currency::fromDouble));
    if (sum == Currency())
        return std::nullopt;

    // Shares are taken in double precision, quotient first, and rounded once, to four places.
    Nutrients<Currency> parts;
    Nutrients<Currency> rest;
    rest[takesTheRest] = calories;
    for (const Nutrient n : allNutrients) {
        if (n == takesTheRest)
            continue;
        parts[n] = Currency::fromDouble(calories.toDouble() * (weighted[n] / sum.toDouble()));
        rest[n] = -parts[n];
    }
    parts[takesTheRest] = sumOf(rest);
    return parts;
}
