#include "journal/consumptionfigures.h"

Nutrients<qint64> consumptionFigures(Currency quantity, const Nutrients<double> &caloriesPerUnit)
{
    return caloriesPerUnit.map(
        [q = quantity.toDouble()](double calories) { return qint64(roundToInt32(q * calories)); });
}
