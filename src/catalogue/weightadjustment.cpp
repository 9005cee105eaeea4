#include "catalogue/weightadjustment.h"

#include "data/numbers.h"
#include "settings/units.h"

double baseCalories(double calories, qint16 userWeight, bool metric)
{
    if (userWeight == 0)
        throw OverflowError("no base calories from a body without weight");
    return calories * (units::referenceWeight(metric) / userWeight);
}

qint16 adjustedCalories(double calories, double forWeight, qint16 userWeight)
{
    if (forWeight == 0)
        throw OverflowError("calories can't be scaled from a weight of 0");
    const double ratio = double(static_cast<float>(userWeight)) / forWeight;
    return roundToInt16(calories * ratio);
}
