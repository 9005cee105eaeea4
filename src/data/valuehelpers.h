// Small helpers on values that several windows use.
#pragma once

#include "data/value.h"

/// The empty text for Null, otherwise the value as text.
QString NullToEmpty(const Value &value);
/// 0 for Null and for the empty text, otherwise the value as a whole number, rounded half to even.
/// A text that is no number, or a number beyond 32 bits, throws OverflowError.
qint32 NullToZero(const Value &value);

/// The smaller of two values; on a tie the second.
template<typename T>
constexpr const T &MinOf(const T &first, const T &second)
{
    return second > first ? first : second;
}

/// The greater of two values; on a tie the second.
template<typename T>
constexpr const T &MaxOf(const T &first, const T &second)
{
    return second < first ? first : second;
}

/// The multiple of `step` next to the value: downward the greatest one not above it, otherwise
/// the least one not below it. Throws OverflowError where value / step is beyond 16 bits or the
/// step is 0.
Currency SnapToStep(float value, bool downward, Currency step);

/// The letter of a label: A for 0, Z for 25, A again for 26.
QChar LetterOf(qint16 n);
