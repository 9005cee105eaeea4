#include "data/numbers.h"

#include <cmath>
#include <limits>

namespace {

template<typename Narrow>
Narrow narrowed(qint64 value)
{
    if (value < std::numeric_limits<Narrow>::min() || value > std::numeric_limits<Narrow>::max())
        throw OverflowError("a whole number is outside the range of its type");
    return static_cast<Narrow>(value);
}

template<typename Narrow>
Narrow roundedTo(double value)
{
    const double rounded = roundHalfEven(value);
    // Written so that NaN, which compares with nothing, is refused too.
    if (!(rounded >= double(std::numeric_limits<Narrow>::min()) &&
          rounded <= double(std::numeric_limits<Narrow>::max())))
        throw OverflowError("a number is outside the range of its whole-number type");
    return static_cast<Narrow>(rounded);
}

} // namespace

double roundHalfEven(double value)
{
    // std::remainder is exact and, unlike std::nearbyint, does not depend on the rounding mode
    // that a printer driver or a plug-in may have left behind.
    return std::isfinite(value) ? value - std::remainder(value, 1.0) : value;
}

double roundHalfEven(double value, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    const double scaled = value * scale;
    return std::isfinite(scaled) ? roundHalfEven(scaled) / scale : value;
}

qint16 toInt16(qint64 value)
{
    return narrowed<qint16>(value);
}

qint32 toInt32(qint64 value)
{
    return narrowed<qint32>(value);
}

qint16 roundToInt16(double value)
{
    return roundedTo<qint16>(value);
}

qint32 roundToInt32(double value)
{
    return roundedTo<qint32>(value);
}
