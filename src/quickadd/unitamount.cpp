#include "quickadd/unitamount.h"

#include <QHash>
#include <QRegularExpression>

std::optional<Amount> oneOf(const QString &unit)
{
    // International avoirdupois ounce and pound; the long words in the languages of the program.
    static const QHash<QString, Amount> units{
        {QStringLiteral("g"), {1, Measure::Weight}},
        {QStringLiteral("kg"), {1000, Measure::Weight}},
        {QStringLiteral("oz"), {28.349523125, Measure::Weight}},
        {QStringLiteral("lb"), {453.59237, Measure::Weight}},
        {QStringLiteral("ml"), {1, Measure::Volume}},
        {QStringLiteral("cl"), {10, Measure::Volume}},
        {QStringLiteral("dl"), {100, Measure::Volume}},
        {QStringLiteral("l"), {1000, Measure::Volume}},
        {QStringLiteral("min"), {1, Measure::Time}},
        {QStringLiteral("minute"), {1, Measure::Time}},
        {QStringLiteral("h"), {60, Measure::Time}},
        {QStringLiteral("hour"), {60, Measure::Time}},
        {QStringLiteral("std"), {60, Measure::Time}},
        {QStringLiteral("stunde"), {60, Measure::Time}},
        {QStringLiteral("kcal"), {1, Measure::Energy}},
    };
    const auto found = units.constFind(unit.toLower());
    return found == units.constEnd() ? std::nullopt : std::optional(*found);
}

std::optional<Amount> amountNamedBy(const QString &unit)
{
    // "fl oz" is another unit than "oz".
    static const QRegularExpression named(
        QStringLiteral(
            "(?:^|[\\s(])(?:(\\d+(?:[.,]\\d+)?)\\s*)?"
            "(kg|g|oz|lb|ml|cl|dl|l|min|h|minute|hour|std|stunde)(?:s|(?<=e)n)?(?=$|[\\s),;/])"),
        QRegularExpression::CaseInsensitiveOption);
    for (const QRegularExpressionMatch &match : named.globalMatch(unit)) {
        const bool isWhole = match.capturedLength() == unit.size();
        if (match.captured(1).isEmpty() && !isWhole)
            continue; // a letter among words
        const double count =
            match.captured(1).isEmpty() ? 1 : match.captured(1).replace(u',', u'.').toDouble();
        const std::optional<Amount> one = oneOf(match.captured(2));
        if (one && count > 0)
            return Amount{one->value * count, one->measure};
    }
    return std::nullopt;
}
