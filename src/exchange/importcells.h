// What the cells of a foreign file mean.
#pragma once

#include "session/localetext.h"

/// Days and months in the order in which a column has them.
enum class DateOrder
{
    YearFirst,
    DayFirst,
    MonthFirst
};

/// What is known of the place where a file is read.
struct ImportPlace
{
    const LocaleText &text;
    QDate today; ///< by which years of two digits are understood
};

/// A number with this decimal separator, the other one or a blank before each three digits or
/// nowhere, rounded to four decimals. None for anything else.
std::optional<double> readNumber(const QString &cell, bool hasDecimalComma);

/// A date from 14 September 1752 to 9999, as the windows show them, with month names in English or
/// the user's language; a time behind it is not read. None for anything else.
std::optional<QDate> readImportDate(const QString &cell, DateOrder order, const ImportPlace &place);

/// The time of day of a cell with or without a date, on either clock, without its seconds. None
/// for anything else.
std::optional<QTime> readImportTime(const QString &cell, const ImportPlace &place);

/// Whether a cell has a time behind a date.
bool hasTimeBehindDate(const QString &cell);

/// How many cells can only have a decimal comma less those that can only have a decimal point.
int decimalCommas(const QStringList &cells);

/// The order in which most cells are dates; where two would do, the one of dates with points, and
/// else the user's own.
DateOrder dateOrderOf(const QStringList &cells, const ImportPlace &place);
