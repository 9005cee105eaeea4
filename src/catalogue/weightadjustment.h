// Calories of an activity for bodies of different weight: the arithmetic of the activity
// catalogue.
#pragma once

#include <QtGlobal>

/// Calories per unit for the reference body (68.04 kg or 150 lb, in the user's units) from those
/// for the user's body; the factor of the user's weight turns them back. Throws OverflowError
/// where the user's weight is 0.
double baseCalories(double calories, qint16 userWeight, bool metric);

/// Calories that a source gives for a body of `forWeight`, scaled to the user's body (same unit)
/// and rounded half to even. Throws OverflowError where `forWeight` is 0 or the result is beyond
/// 16 bits.
qint16 adjustedCalories(double calories, double forWeight, qint16 userWeight);
