// Calories that a performed activity consumed.
#pragma once

#include "data/currency.h"

/// The whole number at or below quantity × calories per unit, the product taken in double
/// precision. Command ExercisePerformSorted rounds the same product, so a list may show one
/// calorie more; both are kept, since users compare with what they have written down. Throws
/// OverflowError for figures beyond 32 bits.
qint32 performanceFigure(Currency quantity, double caloriesConsume);
