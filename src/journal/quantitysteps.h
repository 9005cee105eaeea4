// The steps of the quantity spinners. They are deliberately not symmetric.
#pragma once

#include "data/currency.h"

/// One step up in a meal's quantity: exact decimal arithmetic. Throws OverflowError at the end of
/// the decimal's range.
Currency mealStepUp(Currency quantity, Currency increment);
/// One step down: the quantity passes through single precision on its way in and out, so a large
/// quantity may lose its last digits. Quantities that users have stored were stepped this way.
/// Throws OverflowError as mealStepUp does.
float mealStepDown(float quantity, Currency increment);

/// One step of an activity's quantity, by 1 and in single precision in both directions: above
/// sixteen million a step may be lost.
float activityStepUp(float quantity);
float activityStepDown(float quantity);
