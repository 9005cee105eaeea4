#include "session/localetext.h"

#include <QRegularExpression>

#include <array>
#include <charconv>

namespace {

// "dddd, d. MMMM yyyy" becomes "d. MMM yyyy": the locale's own order and punctuation, without the
// day of the week, and what ties it to the rest, and with the month abbreviated.
QString mediumFormatOf(const QLocale &locale)
{
    static const QRegularExpression weekdayFirst(QStringLiteral("^d{3,4}(?:'[^']*'|[^dMy'])*"));
    static const QRegularExpression weekdayLast(
        QStringLiteral("[\\s,\\x{60C}-]*(?:'[^']*'\\s*)?d{3,4}(?:'[^']*'|[^dMy'])*$"));
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(weekdayFirst);
    format.remove(weekdayLast);
    format.replace(QLatin1String("MMMM"), QLatin1String("MMM"));
    return format;
}

bool writes24Hours(const QLocale &locale)
{
    return locale.toString(QTime(23, 15), QLocale::ShortFormat).contains(QLatin1String("23"));
}

} // namespace

LocaleText::LocaleText(const QLocale &locale)
    : m_locale(locale)
    , m_mediumDateFormat(mediumFormatOf(locale))
    , m_is24HourClock(writes24Hours(locale))
{
}

// The number with ASCII digits, point and minus; other characters stay and make it no number.
QString LocaleText::plainNumber(const QString &text) const
{
    constexpr char16_t minusSign = 0x2212;
    const QString point = m_locale.decimalPoint();
    QString plain;
    const QString trimmed = text.trimmed();
    for (const QChar c : trimmed) {
        if (c.category() == QChar::Other_Format)
            continue; // marks of the writing direction
        if (c.isDigit())
            plain += QChar(u'0' + c.digitValue());
        else if (c == point)
            plain += u'.';
        else if (c == u'.')
            return {}; // a point is no decimal separator here
        else if (c == minusSign)
            plain += u'-';
        else
            plain += c;
    }
    return plain;
}

std::optional<Currency> LocaleText::toCurrency(const QString &text) const
{
    try {
        return Currency::fromText(plainNumber(text));
    } catch (const OverflowError &) {
        return std::nullopt;
    }
}

std::optional<double> LocaleText::toDouble(const QString &text) const
{
    if (!isNumeric(text))
        return std::nullopt;
    return plainNumber(text).toDouble();
}

// The locale's digits and decimal separator for the ASCII ones of a number without groups.
QString LocaleText::localized(const QString &plain) const
{
    const QString zero = m_locale.zeroDigit();
    QString text;
    for (const QChar c : plain) {
        if (c == u'.')
            text += m_locale.decimalPoint();
        else if (c.isDigit() && zero.size() == 1)
            text += QChar(static_cast<char16_t>(zero.front().unicode() + c.digitValue()));
        else
            text += c;
    }
    return text;
}

QString LocaleText::toText(float value) const
{
    std::array<char, 64> buffer; // the longest float takes 39 digits before the point
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed)
            .ptr;
    return localized(QString::fromLatin1(buffer.data(), end - buffer.data()));
}

QString LocaleText::toText(const Value &value) const
{
    const bool isText = std::holds_alternative<QString>(value.storage());
    return isText ? value.toText() : localized(value.toText());
}

QString LocaleText::listTime(QTime time) const
{
    const auto number = [](int value, int digits) {
        return QString::number(value).rightJustified(digits, u'0');
    };
    const QString minutes = u':' + number(time.minute(), 2);
    if (m_is24HourClock)
        return localized(number(time.hour(), 2) + minutes);
    const int hour = (time.hour() + 11) % 12 + 1;
    return localized(number(hour, 1) + minutes) +
           (time.hour() < 12 ? QStringLiteral(" am") : QStringLiteral(" pm"));
}
