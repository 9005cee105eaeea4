#include "journal/performancefigures.h"

qint32 performanceFigure(Currency quantity, Currency caloriesConsume)
{
    // Not rounded to four places in between: that would carry some products over a whole number.
    constexpr qint64 unitsPerOne = Currency::unitsPerOne * Currency::unitsPerOne;
    qint64 units = 0;
    if (qMulOverflow(quantity.tenThousandths(), caloriesConsume.tenThousandths(), &units))
        throw OverflowError("the calories of an activity are outside the range of 32 bits");
    const qint64 whole = units / unitsPerOne;
    return toInt32(units % unitsPerOne < 0 ? whole - 1 : whole);
}
