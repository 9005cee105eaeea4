// Weights and volumes, as units of the catalogue name them and people type them.
#pragma once

#include <QString>

#include <optional>

/// What an amount is measured in; amounts of different kinds can't be turned into each other.
enum class Measure
{
    Weight, ///< in grams
    Volume, ///< in millilitres
    Time,   ///< in minutes
    Energy  ///< in kilocalories
};

struct Amount
{
    double value = 0;
    Measure measure = Measure::Weight;
};

/// One of a unit that a number may have behind it, without regard to case: g, kg, oz, lb; ml, cl,
/// dl, l; min, minute, h, hour and the German std, stunde; kcal. None for any other word.
std::optional<Amount> oneOf(const QString &unit);

/// The weight, volume or time that one unit of a catalogue record stands for: 118 g for "medium
/// (118 g)", one minute for "minute". Decimals are read with a point or a comma. None where it
/// names none, as "piece" does, or none above 0.
std::optional<Amount> amountNamedBy(const QString &unit);
