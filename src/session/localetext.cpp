#include "session/localetext.h"

#include <QRegularExpression>

#include <array>
#include <charconv>

namespace {

// "dddd, d. MMMM yyyy" becomes "d. MMM yyyy": the locale's own order and punctuation, without the
// day of the week and with the month abbreviated.
QString mediumFormatOf(const QLocale &locale)
{
    static const QRegularExpression weekday(
        QStringLiteral("^'?[^dMy']*'?\\s*d{3,4}[^dMy']*|[^dMy']*\\bd{3,4}[^dMy']*$"));
    QString format = locale.dateFormat(QLocale::LongFormat);
    format.remove(weekday);
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
        if (c.digitValue() >= 0)
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

QString LocaleText::toText(Currency value) const
{
    return value.toText().replace(u'.', m_locale.decimalPoint());
}

QString LocaleText::toText(float value) const
{
    std::array<char, 64> buffer; // the longest float takes 39 digits before the point
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed)
            .ptr;
    return QString::fromLatin1(buffer.data(), end - buffer.data())
        .replace(u'.', m_locale.decimalPoint());
}

QString LocaleText::toText(const Value &value) const
{
    const QString text = value.toText();
    const bool isText = std::holds_alternative<QString>(value.storage());
    return isText ? text : QString(text).replace(u'.', m_locale.decimalPoint());
}

QString LocaleText::listTime(QTime time) const
{
    if (m_is24HourClock)
        return QStringLiteral("%1:%2")
            .arg(time.hour(), 2, 10, QChar(u'0'))
            .arg(time.minute(), 2, 10, QChar(u'0'));
    const int hour = (time.hour() + 11) % 12 + 1;
    return QStringLiteral("%1:%2 %3")
        .arg(hour)
        .arg(time.minute(), 2, 10, QChar(u'0'))
        .arg(time.hour() < 12 ? QStringLiteral("am") : QStringLiteral("pm"));
}
