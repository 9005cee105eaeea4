// Rounding and checked narrowing, the two ways in which a number may lose something.
#pragma once

#include <QtGlobal>

#include <stdexcept>

/// A number does not fit the type that it is to be kept in. Nothing has been stored under it.
class OverflowError : public std::overflow_error
{
public:
    using std::overflow_error::overflow_error;
};

/// The nearest whole number, an exact half to the even neighbour. NaN and infinities pass.
double roundHalfEven(double value);

/// Rounded half to even at the given number of decimals (0 to 15).
double roundHalfEven(double value, int decimals);

/// Checked conversions of whole numbers; throw OverflowError where the value does not fit.
qint16 toInt16(qint64 value);
qint32 toInt32(qint64 value);

/// Rounded half to even, then checked; NaN and infinities throw OverflowError too.
qint16 roundToInt16(double value);
qint32 roundToInt32(double value);
