#include "session/typeddatetime.h"

#include <QRegularExpression>

#include <vector>

namespace {

struct Number
{
    int value = 0;
    int digits = 0;
    bool isName = false; ///< of a month
};

/// What a text consists of, separators apart.
struct Pieces
{
    std::vector<Number> numbers;
    QStringList words;
};

Pieces piecesOf(const QString &text)
{
    Pieces pieces;
    enum
    {
        Gap,
        Digits,
        Letters
    } in = Gap;
    for (const char32_t c : text.toStdU32String()) {
        if (QChar::isDigit(c)) {
            if (in != Digits)
                pieces.numbers.emplace_back();
            Number &number = pieces.numbers.back();
            // Longer ones are refused by their digits.
            if (++number.digits <= 8)
                number.value = number.value * 10 + QChar::digitValue(c);
            in = Digits;
        } else if (QChar::isLetter(c) || QChar::isMark(c)) {
            if (in != Letters)
                pieces.words.append(QString());
            pieces.words.last() += QString::fromUcs4(&c, 1);
            in = Letters;
        } else if (QChar::category(c) != QChar::Other_Format) {
            in = Gap;
        }
    }
    return pieces;
}

int monthNamed(const QString &word, const QLocale &locale)
{
    for (int month = 1; month <= 12; ++month) {
        for (const QString &name :
             {locale.monthName(month, QLocale::ShortFormat), locale.monthName(month),
              locale.standaloneMonthName(month, QLocale::ShortFormat),
              locale.standaloneMonthName(month)}) {
            if (name.compare(word, Qt::CaseInsensitive) == 0 ||
                name.chopped(name.endsWith(u'.') ? 1 : 0).compare(word, Qt::CaseInsensitive) == 0)
                return month;
        }
    }
    return 0;
}

/// The letters of a format in their order: "dMy".
QString orderOf(const QString &format)
{
    QString order;
    for (const QChar c : format) {
        if (QStringView(u"dMy").contains(c) && !order.contains(c))
            order += c;
    }
    return order;
}

/// Eight digits, or six, in the order of the locale.
std::vector<Number> splitDigits(Number all, const QString &order)
{
    std::vector<Number> parts(size_t(order.size()));
    for (qsizetype i = order.size() - 1; i >= 0; --i) {
        const int digits = order[i] == u'y' ? all.digits - 4 : 2;
        const int range = digits == 4 ? 10000 : 100;
        parts[size_t(i)] = {all.value % range, digits};
        all.value /= range;
    }
    return parts;
}

std::optional<int> fullYear(Number year, QDate today)
{
    if (year.digits == 4)
        return year.value;
    const int century = today.year() / 100;
    if (year.digits != 2 || year.value == century || year.value == century - 1)
        return std::nullopt;
    // A journal is about the past, and a little about plans.
    const int latest = today.year() + 20;
    return latest - (latest - year.value) % 100;
}

/// The half of the day that a word stands for: 0 or 12 hours, none where it is neither.
std::optional<int> halfNamed(const QString &word, const QLocale &locale)
{
    const auto letters = [](const QString &text) { return piecesOf(text).words.join(QString()); };
    const auto begins = [&word](const QString &name) {
        return name.startsWith(word, Qt::CaseInsensitive);
    };
    bool am = begins(letters(locale.amText()));
    bool pm = begins(letters(locale.pmText()));
    if (!am && !pm) {
        am = begins(QStringLiteral("am"));
        pm = begins(QStringLiteral("pm"));
    }
    if (am == pm)
        return std::nullopt;
    return am ? 0 : 12;
}

} // namespace

std::optional<QDate> readDate(const QString &text, const QLocale &locale, const QString &format,
                              QDate today)
{
    Pieces pieces = piecesOf(text);
    std::vector<Number> &numbers = pieces.numbers;
    QString order = orderOf(format);
    for (const QString &word : pieces.words) {
        if (const int month = monthNamed(word, locale)) {
            numbers.push_back({month, 2, true});
            order = order.remove(u'M') + u'M';
        } else if (!format.contains(word)) {
            return std::nullopt;
        }
    }
    if (numbers.size() == 1 && (numbers[0].digits == 8 || numbers[0].digits == 6))
        numbers = splitDigits(numbers[0], order);
    if (numbers.size() != 3)
        return std::nullopt;
    if (numbers[0].digits == 4 && !numbers[2].isName)
        order = QStringLiteral("yMd");
    const auto part = [&](QChar letter) { return numbers[size_t(order.indexOf(letter))]; };
    const std::optional<int> year = fullYear(part(u'y'), today);
    if (!year || part(u'M').digits > 2 || part(u'd').digits > 2)
        return std::nullopt;
    const QDate date(*year, part(u'M').value, part(u'd').value);
    return date.isValid() ? std::optional(date) : std::nullopt;
}

std::optional<QTime> readTime(const QString &text, const QLocale &locale, bool is24HourClock)
{
    static const QRegularExpression hourOfHalf(QStringLiteral("^\\s*\\d{1,2}\\s*\\pL"),
                                               QRegularExpression::UseUnicodePropertiesOption);
    const Pieces pieces = piecesOf(text);
    std::vector<Number> numbers = pieces.numbers;
    if (numbers.size() == 1 && (numbers[0].digits == 3 || numbers[0].digits == 4))
        numbers = {{numbers[0].value / 100, 2}, {numbers[0].value % 100, 2}};
    else if (numbers.size() == 1 && text.contains(hourOfHalf))
        numbers.push_back({0, 2}); // "7 pm"
    if (numbers.size() != 2 || numbers[0].digits > 2 || numbers[1].digits > 2)
        return std::nullopt;
    int hour = numbers[0].value;
    const bool tellsItsHalf = hour == 0 || hour > 12;
    if (!pieces.words.isEmpty()) {
        const std::optional<int> half = halfNamed(pieces.words.join(QString()), locale);
        if (!half)
            return std::nullopt;
        if (!tellsItsHalf)
            hour = hour % 12 + *half;
    } else if (!is24HourClock && !tellsItsHalf) {
        return std::nullopt;
    }
    const QTime time(hour, numbers[1].value);
    return time.isValid() ? std::optional(time) : std::nullopt;
}

std::optional<int> readSpan(const QString &text)
{
    static const QRegularExpression span(QStringLiteral("^\\s*\\d{1,2}\\s*:\\s*\\d{2}\\s*$"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    if (!text.contains(span))
        return std::nullopt;
    const std::vector<Number> numbers = piecesOf(text).numbers;
    const QTime time(numbers[0].value, numbers[1].value);
    return time.isValid() ? std::optional(time.hour() * 60 + time.minute()) : std::nullopt;
}
