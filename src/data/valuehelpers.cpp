#include "data/valuehelpers.h"

#include <limits>

QString NullToEmpty(const Value &value)
{
    return value.toText();
}

qint32 NullToZero(const Value &value)
{
    const auto *text = std::get_if<QString>(&value.storage());
    if (!text)
        return value.toInt32();
    if (text->isEmpty())
        return 0;
    bool isNumber = false;
    const double number = text->toDouble(&isNumber);
    return roundToInt32(isNumber ? number : std::numeric_limits<double>::quiet_NaN());
}

Currency SnapToStep(float value, bool downward, Currency step)
{
    const double exact = double(value);
    const qint16 quotient = roundToInt16(exact / step.toDouble());
    const Currency result = step * quotient;
    if (downward)
        return result.toDouble() > exact ? result - step : result;
    return result.toDouble() >= exact ? result : result + step;
}

QChar LetterOf(qint16 n)
{
    return QChar(static_cast<char16_t>(n % 26 + u'A'));
}
