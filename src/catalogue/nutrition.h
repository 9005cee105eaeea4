// What a meal's calories come from: the arithmetic of the meal catalogue.
#pragma once

#include "data/currency.h"
#include "data/nutrients.h"

#include <optional>

/// Splits the calories of one unit of a meal over its nutrients (grams per unit, any sign) in the
/// ratio 4.5 : 2 : 2 of fat, carbohydrate and protein, the usual 9 : 4 : 4 calories per gram
/// halved. The parts always add up to the calories exactly: what rounding loses falls on
/// carbohydrate. std::nullopt when the weighted sum of the nutrients is 0, so that nothing says
/// where the calories come from. A sum or part out of range throws OverflowError.
std::optional<Nutrients<Currency>> caloriesByNutrient(Currency calories,
                                                      const Nutrients<Currency> &grams);
