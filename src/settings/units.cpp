#include "settings/units.h"

#include <QCoreApplication>

#include <cmath>

namespace units {

QString weightLabel(bool metric)
{
    return metric ? QCoreApplication::translate("units", "kg")
                  : QCoreApplication::translate("units", "lb");
}

QString girthLabel(bool metric)
{
    return metric ? QCoreApplication::translate("units", "cm")
                  : QCoreApplication::translate("units", "inch");
}

double referenceWeight(bool metric)
{
    return metric ? referenceWeightKg : referenceWeightLb;
}

float weightFactor(qint16 weight, bool metric)
{
    const auto single = static_cast<float>(weight);
    // Metric passes through a double quotient, imperial does not.
    return metric ? static_cast<float>(double(single) / referenceWeightKg)
                  : single / static_cast<float>(referenceWeightLb);
}

double backgroundCalories(double weight, bool metric)
{
    const double kilograms = metric ? weight : weight * LbToKg.toDouble();
    return std::floor((kilograms * 8.7 + 830) / 24);
}

} // namespace units
