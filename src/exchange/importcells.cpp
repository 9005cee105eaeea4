#include "exchange/importcells.h"

#include "session/typeddatetime.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

/// What stands before and behind the blank or the letter between a date and a time.
struct DateAndTime
{
    QString date;
    QString time;
};

std::optional<DateAndTime> splitAtTime(const QString &cell)
{
    static const QRegularExpression both(
        QStringLiteral("^\\s*(\\S.*?)(?:T|[\\s,]+)(\\d{1,2}:\\d{2}.*)$"));
    if (!cell.contains(u':'))
        return std::nullopt;
    const QRegularExpressionMatch match = both.match(cell);
    return match.hasMatch() ? std::optional(DateAndTime{match.captured(1), match.captured(2)})
                            : std::nullopt;
}

QString formatOf(DateOrder order)
{
    switch (order) {
    case DateOrder::YearFirst:
        return QStringLiteral("yyyy-MM-dd");
    case DateOrder::DayFirst:
        return QStringLiteral("dd.MM.yyyy");
    case DateOrder::MonthFirst:
        break;
    }
    return QStringLiteral("MM/dd/yyyy");
}

std::optional<QDate> anyDate(const QString &text, DateOrder order, const ImportPlace &place)
{
    const bool isIso = text.size() == 10 && text[4] == u'-' && text[7] == u'-';
    if (const QDate date = isIso ? QDate::fromString(text, Qt::ISODate) : QDate(); date.isValid())
        return date;
    const QString format = formatOf(order);
    const auto date = readDate(text, place.text.locale(), format, place.today);
    return date ? date : readDate(text, QLocale::c(), format, place.today);
}

/// 1 where the only thing that can be a decimal separator is a comma, -1 for a point, else 0.
int decimalComma(const QString &cell)
{
    const qsizetype comma = cell.lastIndexOf(u',');
    const qsizetype point = cell.lastIndexOf(u'.');
    if (comma < 0 && point < 0)
        return 0;
    if (comma >= 0 && point >= 0)
        return comma > point ? 1 : -1;
    const QChar mark = comma >= 0 ? u',' : u'.';
    const int ifDecimal = comma >= 0 ? 1 : -1;
    if (cell.count(mark) > 1)
        return -ifDecimal; // between groups
    const QString number = cell.trimmed();
    const qsizetype at = number.indexOf(mark);
    const bool mayBeGroup = number.size() - at == 4 && at > 0 && at <= 4 && number[0] != u'0' &&
                            number.at(at - 1).isDigit();
    return mayBeGroup ? 0 : ifDecimal;
}

} // namespace

std::optional<double> readNumber(const QString &cell, bool hasDecimalComma)
{
    static const LocaleText withComma(QLocale(QLocale::German, QLocale::Germany));
    static const LocaleText withPoint(QLocale(QLocale::English, QLocale::UnitedStates));
    const auto number =
        (hasDecimalComma ? withComma : withPoint).toCurrency(QString(cell).remove(u' '));
    return number ? std::optional(number->toDouble()) : std::nullopt;
}

std::optional<QDate> readImportDate(const QString &cell, DateOrder order, const ImportPlace &place)
{
    static const QDate first(1752, 9, 14);
    static const QDate last(9999, 12, 31);
    const auto both = splitAtTime(cell);
    const auto date = anyDate(both ? both->date : cell.trimmed(), order, place);
    return date && *date >= first && *date <= last ? date : std::nullopt;
}

std::optional<QTime> readImportTime(const QString &cell, const ImportPlace &place)
{
    static const QRegularExpression seconds(
        QStringLiteral("^(\\s*\\d{1,2}:\\d{2}):\\d{2}(?:[.,]\\d+)?"));
    const auto both = splitAtTime(cell);
    QString time = both ? both->time : cell;
    time.replace(seconds, QStringLiteral("\\1"));
    return readTime(time, place.text.locale(), true);
}

bool hasTimeBehindDate(const QString &cell)
{
    return splitAtTime(cell).has_value();
}

int decimalCommas(const QStringList &cells)
{
    int commas = 0;
    for (const QString &cell : cells)
        commas += decimalComma(cell);
    return commas;
}

DateOrder dateOrderOf(const QStringList &cells, const ImportPlace &place)
{
    static const QRegularExpression year(QStringLiteral("^\\s*\\d{4}\\D"));
    int years = 0;
    int dayFirst = 0;
    int monthFirst = 0;
    bool hasPoints = false;
    for (const QString &cell : cells) {
        if (cell.contains(year)) {
            ++years;
            continue;
        }
        hasPoints = hasPoints || cell.contains(u'.');
        dayFirst += readImportDate(cell, DateOrder::DayFirst, place) ? 1 : 0;
        monthFirst += readImportDate(cell, DateOrder::MonthFirst, place) ? 1 : 0;
    }
    if (years >= dayFirst && years >= monthFirst && years > 0)
        return DateOrder::YearFirst;
    const QString own = place.text.dateInputFormat();
    const bool isDay = dayFirst != monthFirst ? dayFirst > monthFirst
                                              : hasPoints || own.indexOf(u'd') < own.indexOf(u'M');
    return isDay ? DateOrder::DayFirst : DateOrder::MonthFirst;
}
