#include "data/currency.h"

#include <cmath>
#include <limits>

namespace {

[[noreturn]] void raiseOverflow()
{
    throw OverflowError("a decimal is outside the range of 64 bits with four places");
}

// Appends a digit to a magnitude of ten-thousandths; the magnitude may reach 2^63, the count of
// the most negative value.
void appendDigit(quint64 &magnitude, quint64 digit)
{
    constexpr quint64 limit = quint64(1) << 63;
    if (magnitude > (limit - digit) / 10)
        raiseOverflow();
    magnitude = magnitude * 10 + digit;
}

qint64 withSign(quint64 magnitude, bool negative)
{
    constexpr quint64 limit = quint64(1) << 63;
    if (magnitude > (negative ? limit : limit - 1))
        raiseOverflow();
    return negative ? static_cast<qint64>(~magnitude + 1) : static_cast<qint64>(magnitude);
}

} // namespace

Currency Currency::fromInteger(qint64 value)
{
    qint64 units = 0;
    if (qMulOverflow(value, unitsPerOne, &units))
        raiseOverflow();
    return Currency(units);
}

Currency Currency::fromDouble(double value)
{
    // The double nearest to the greatest decimal, and so what is stored of it, lies beyond it.
    constexpr qint64 greatest = std::numeric_limits<qint64>::max();
    if (std::abs(value) == Currency(greatest).toDouble())
        return Currency(value < 0 ? -greatest : greatest);
    const double units = roundHalfEven(value * double(unitsPerOne));
    constexpr double limit = 9223372036854775808.0; // 2^63, exact in a double
    if (!(units >= -limit && units < limit))
        raiseOverflow();
    return Currency(static_cast<qint64>(units));
}

std::optional<Currency> Currency::fromText(QStringView text)
{
    qsizetype at = 0;
    const bool negative = text.startsWith(u'-');
    if (negative || text.startsWith(u'+'))
        ++at;

    quint64 magnitude = 0;
    int places = -1; // digits seen behind the point; -1 before it
    bool anyDigit = false;
    int firstDropped = 0;     // the fifth place
    bool restDropped = false; // anything but zeros behind it
    for (; at < text.size(); ++at) {
        const char16_t unit = text[at].unicode();
        if (unit == u'.' && places < 0) {
            places = 0;
            continue;
        }
        if (unit < u'0' || unit > u'9')
            return std::nullopt;
        anyDigit = true;
        const auto digit = static_cast<quint64>(unit - u'0');
        if (places < 4) {
            appendDigit(magnitude, digit);
            if (places >= 0)
                ++places;
        } else if (places == 4) {
            firstDropped = static_cast<int>(digit);
            ++places;
        } else {
            restDropped = restDropped || digit != 0;
        }
    }
    if (!anyDigit)
        return std::nullopt;
    for (int place = qMax(places, 0); place < 4; ++place)
        appendDigit(magnitude, 0);
    const bool half = firstDropped == 5 && !restDropped;
    if (half ? (magnitude & 1) != 0 : firstDropped >= 5)
        ++magnitude;
    return Currency(withSign(magnitude, negative));
}

double Currency::toDouble() const
{
    return double(m_units) / double(unitsPerOne);
}

QString Currency::toText() const
{
    const bool negative = m_units < 0;
    const quint64 magnitude =
        negative ? ~static_cast<quint64>(m_units) + 1 : static_cast<quint64>(m_units);
    QString text = QString::number(magnitude / unitsPerOne);
    if (const quint64 fraction = magnitude % unitsPerOne) {
        QString digits = QString::number(fraction).rightJustified(4, u'0');
        while (digits.endsWith(u'0'))
            digits.chop(1);
        text += u'.' + digits;
    }
    return negative ? u'-' + text : text;
}

Currency Currency::operator-() const
{
    return Currency() - *this;
}

Currency Currency::operator+(Currency other) const
{
    qint64 units = 0;
    if (qAddOverflow(m_units, other.m_units, &units))
        raiseOverflow();
    return Currency(units);
}

Currency Currency::operator-(Currency other) const
{
    qint64 units = 0;
    if (qSubOverflow(m_units, other.m_units, &units))
        raiseOverflow();
    return Currency(units);
}

Currency Currency::operator*(qint64 factor) const
{
    qint64 units = 0;
    if (qMulOverflow(m_units, factor, &units))
        raiseOverflow();
    return Currency(units);
}
