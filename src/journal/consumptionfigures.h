// Calories of a consumed quantity of a meal.
#pragma once

#include "data/currency.h"
#include "data/nutrients.h"

/// Calories by nutrient, each rounded half to even to a whole number before they are added, as
/// command MealConsumeSorted rounds them: the editor and the list show the same figures. Per-unit
/// calories as stored; the product is taken in double precision, like the query's. Throws
/// OverflowError for figures beyond 32 bits.
Nutrients<qint64> consumptionFigures(Currency quantity, const Nutrients<double> &caloriesPerUnit);
