#include "journal/quantitysteps.h"

Currency mealStepUp(Currency quantity, Currency increment)
{
    return quantity + increment;
}

float mealStepDown(Currency quantity, Currency increment)
{
    const auto single = static_cast<float>(quantity.toDouble());
    const Currency stepped = Currency::fromDouble(double(single)) - increment;
    return static_cast<float>(stepped.toDouble());
}
