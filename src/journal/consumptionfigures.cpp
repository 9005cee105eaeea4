#include "journal/consumptionfigures.h"

ConsumptionFigures consumptionFigures(Currency quantity, double fatBC, double carbohydrateBC,
                                      double proteinBC)
{
    const double q = quantity.toDouble();
    return {roundToInt32(q * fatBC), roundToInt32(q * carbohydrateBC), roundToInt32(q * proteinBC)};
}
