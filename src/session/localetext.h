// Numbers, dates and times as the user's locale writes them, both ways.
#pragma once

#include "data/value.h"

#include <QDateTime>
#include <QLocale>
#include <QString>
#include <QTime>

#include <optional>
#include <vector>

/// The one place where numbers become text and text becomes numbers. Group separators are read
/// only in their right places, so that "1.5" typed where the comma is decimal is an error and never
/// 15; they are never written.
class LocaleText
{
public:
    explicit LocaleText(const QLocale &locale);

    const QLocale &locale() const { return m_locale; }

    /// Reads an optional sign, digits (the locale's or ASCII ones), grouped or not, and the
    /// locale's decimal separator, blanks around them allowed. std::nullopt for anything else and
    /// for a number beyond the decimal's range.
    std::optional<Currency> toCurrency(const QString &text) const;
    /// The same numbers as a double.
    std::optional<double> toDouble(const QString &text) const;
    bool isNumeric(const QString &text) const { return toCurrency(text).has_value(); }

    /// At most four decimals, no trailing zeros.
    QString toText(Currency value) const { return localized(value.toText()); }
    /// The shortest decimal text that reads back as the same single-precision number, as far as
    /// four decimals go. Throws OverflowError beyond the decimal's range.
    QString toText(float value) const;
    /// A stored number, at most four decimals.
    QString toText(double value) const { return toText(Currency::fromDouble(value)); }
    QString toText(int value) const { return localized(QString::number(value)); }
    /// A value of a record: numbers as above, texts as they are, Null as the empty text.
    QString toText(const Value &value) const;

    /// The locale's short date with a four-digit year, for Qt's date editor: two digits would leave
    /// the century to a guess.
    QString dateInputFormat() const;
    QString shortDate(QDate date) const { return m_locale.toString(date, QLocale::ShortFormat); }
    /// Day, abbreviated month and year in the order of the locale's long date.
    QString mediumDate(QDate date) const { return m_locale.toString(date, m_mediumDateFormat); }

    /// Day and time as above and below: "23 Nov 2026, 08:05".
    QString moment(const QDateTime &time) const;

    /// Whether the locale writes 23:15 with a "23".
    bool is24HourClock() const { return m_is24HourClock; }
    /// Two-digit hour on a 24-hour clock ("08:05"), otherwise "8:05 am".
    QString listTime(QTime time) const;

private:
    QString plainNumber(const QString &text) const;
    bool isGroupSeparator(QChar c) const;
    bool isGrouped(const std::vector<int> &groups) const;
    QString localized(const QString &plain) const;

    QLocale m_locale;
    std::vector<int> m_groups; ///< digits in the groups of a long number, the last but one and last
    QString m_mediumDateFormat;
    bool m_is24HourClock;
};
