#include "session/localetext.h"

#include <QRegularExpression>

#include <algorithm>
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

// The digits in the last two groups of a long number: 3 and 3, or 2 and 3 in India.
std::vector<int> groupsOf(const QLocale &locale)
{
    std::vector<int> groups{0};
    for (const char32_t c : locale.toString(qint64(1234567890123456)).toStdU32String()) {
        if (QChar::isDigit(c))
            ++groups.back();
        else
            groups.push_back(0);
    }
    if (groups.size() < 3)
        return {3, 3}; // written without, read all the same
    return {groups.end() - 2, groups.end()};
}

bool writes24Hours(const QLocale &locale)
{
    return locale.toString(QTime(23, 15), QLocale::ShortFormat).contains(QLatin1String("23"));
}

} // namespace

LocaleText::LocaleText(const QLocale &locale)
    : m_locale(locale)
    , m_groups(groupsOf(locale))
    , m_mediumDateFormat(mediumFormatOf(locale))
    , m_is24HourClock(writes24Hours(locale))
{
}

// The number with ASCII digits, point and minus and without groups; empty where a point or a group
// separator stands in a wrong place. Other characters stay and make it no number.
QString LocaleText::plainNumber(const QString &text) const
{
    constexpr char16_t minusSign = 0x2212;
    const QString point = m_locale.decimalPoint();
    QString plain;
    std::vector<int> groups{0}; // digits in each
    bool inFraction = false;
    const QString trimmed = text.trimmed();
    for (const QChar c : trimmed) {
        if (c.category() == QChar::Other_Format)
            continue; // marks of the writing direction
        if (c.isDigit()) {
            plain += QChar(u'0' + c.digitValue());
            groups.back() += inFraction ? 0 : 1;
        } else if (c == point) {
            plain += u'.';
            inFraction = true;
        } else if (isGroupSeparator(c) && !inFraction) {
            groups.push_back(0);
        } else if (c == u'.') {
            return {}; // no decimal separator here
        } else {
            plain += c == minusSign ? QChar(u'-') : c;
        }
    }
    // A zero that leads a group is meant as the zero before a fraction.
    static const QRegularExpression leadingZero(QStringLiteral("^\\D*0"));
    if (groups.size() > 1 && (!isGrouped(groups) || plain.contains(leadingZero)))
        return {};
    return plain;
}

bool LocaleText::isGroupSeparator(QChar c) const
{
    // No keyboard has the blanks and the apostrophe that some locales write.
    for (const QStringView alike : {u" \u00A0\u2009\u202F", u"'\u2019"}) {
        if (alike.contains(m_locale.groupSeparator()))
            return alike.contains(c);
    }
    return c == m_locale.groupSeparator();
}

bool LocaleText::isGrouped(const std::vector<int> &groups) const
{
    const auto fits = [&groups](int inner, int last) {
        return groups.front() >= 1 && groups.front() <= inner && groups.back() == last &&
               std::all_of(groups.begin() + 1, groups.end() - 1,
                           [inner](int digits) { return digits == inner; });
    };
    return fits(m_groups[0], m_groups[1]) || fits(3, 3);
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
    try {
        const QString plain = plainNumber(text);
        if (Currency::fromText(plain))
            return plain.toDouble();
    } catch (const OverflowError &) {
        // no number either
    }
    return std::nullopt;
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
    // Digits past the fourth decimal come from the binary fraction: 1.1 - 1 is 0.100000024.
    return toText(*Currency::fromText(QString::fromLatin1(buffer.data(), end - buffer.data())));
}

QString LocaleText::toText(const Value &value) const
{
    const bool isText = std::holds_alternative<QString>(value.storage());
    return isText ? value.toText() : localized(value.toText());
}

QString LocaleText::dateInputFormat() const
{
    QString format = m_locale.dateFormat(QLocale::ShortFormat);
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    return format;
}

QString LocaleText::moment(const QDateTime &time) const
{
    return mediumDate(time.date()) + QStringLiteral(", ") + listTime(time.time());
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
