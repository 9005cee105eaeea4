// Calories of a consumed quantity of a meal.
#pragma once

#include "data/currency.h"

/// Calories by nutrient, each rounded half to even to a whole number before they are added, as
/// command MealConsumeSorted rounds them: the editor and the list show the same figures.
struct ConsumptionFigures
{
    qint64 fat = 0;
    qint64 carbohydrate = 0;
    qint64 protein = 0;

    qint64 total() const { return fat + carbohydrate + protein; }
};

/// Per-unit calories as stored; the product is taken in double precision, like the query's.
/// Throws OverflowError for figures beyond 32 bits.
ConsumptionFigures consumptionFigures(Currency quantity, double fatBC, double carbohydrateBC,
                                      double proteinBC);
