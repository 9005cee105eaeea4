#include "journal/performancefigures.h"

#include <cmath>

qint32 performanceFigure(Currency quantity, double caloriesConsume)
{
    return roundToInt32(std::floor(quantity.toDouble() * caloriesConsume));
}
