// Calories that a performed activity consumed.
#pragma once

#include "data/currency.h"

/// The whole number at or below quantity × calories per unit, of which the product is exact.
/// Command ExercisePerformSorted rounds it instead, so a list may show one calorie more; both are
/// kept, since users compare with what they have written down. Throws OverflowError for figures
/// beyond 32 bits.
qint32 performanceFigure(Currency quantity, Currency caloriesConsume);
