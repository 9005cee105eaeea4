// The steps of the quantity spinners. They are deliberately not symmetric.
#pragma once

#include "data/currency.h"

/// One step up in a meal's quantity: exact decimal arithmetic.
Currency mealStepUp(Currency quantity, Currency increment);
/// One step down: the quantity passes through single precision on its way in and out, so a large
/// quantity may lose its last digits. Quantities that users have stored were stepped this way.
float mealStepDown(Currency quantity, Currency increment);
