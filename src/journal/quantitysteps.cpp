#include "journal/quantitysteps.h"

Currency mealStepUp(Currency quantity, Currency increment)
{
    return quantity + increment;
}

float mealStepDown(float quantity, Currency increment)
{
    const Currency stepped = Currency::fromDouble(double(quantity)) - increment;
    return static_cast<float>(stepped.toDouble());
}

float activityStepUp(float quantity)
{
    return quantity + 1.0F;
}

float activityStepDown(float quantity)
{
    return quantity - 1.0F;
}
