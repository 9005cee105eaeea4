// What a meal's calories come from: the arithmetic of the meal catalogue.
#pragma once

#include "data/currency.h"

#include <optional>

/// Calories of one unit of a meal by the nutrient that they come from.
struct CaloriesByNutrient
{
    Currency fat;
    Currency carbohydrate;
    Currency protein;

    bool operator==(const CaloriesByNutrient &) const = default;
};

/// Splits the calories of one unit of a meal over its nutrients (grams per unit, any sign) in the
/// ratio 4.5 : 2 : 2 of fat, carbohydrate and protein, the usual 9 : 4 : 4 calories per gram
/// halved. The three parts always add up to the calories exactly: what rounding loses falls on
/// carbohydrate. std::nullopt when the weighted sum of the nutrients is 0, so that nothing says
/// where the calories come from. A sum or part out of range throws OverflowError.
std::optional<CaloriesByNutrient> caloriesByNutrient(Currency calories, Currency fat,
                                                     Currency carbohydrate, Currency protein);
