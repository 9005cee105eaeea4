// The two unit systems and what follows from them.
#pragma once

#include "data/currency.h"
#include "session/session.h"

#include <QString>

namespace units {

/// Kilograms per pound and centimetres per inch, as this system converts stored measurements.
/// InchToCm is 2.52 and not 2.54: stored journals were converted with this value.
inline constexpr Currency LbToKg = Currency::fromTenThousandths(4536);
inline constexpr Currency InchToCm = Currency::fromTenThousandths(25200);

/// Body weight for which the base calories of weight-dependent activities are given.
inline constexpr double referenceWeightKg = 68.04;
inline constexpr double referenceWeightLb = 150;

/// The code stored for a unit system.
inline QString codeOf(bool metric)
{
    return metric ? QStringLiteral("M") : QStringLiteral("I");
}

/// "kg" or "lb"; "cm" or "inch".
QString weightLabel(bool metric);
QString girthLabel(bool metric);

/// The reference weight in the user's units.
double referenceWeight(bool metric);

/// Factor from base calories to those for the user's body, in single precision: the weight over
/// the reference weight.
float weightFactor(qint16 weight, bool metric);

/// Background calories per hour from a weight in the user's units: a day's resting consumption of
/// 8.7 calories per kilogram plus 830, spread over 24 hours, rounded down.
double backgroundCalories(double weight, bool metric);

} // namespace units
