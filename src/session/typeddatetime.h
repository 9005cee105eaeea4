// Dates and times as a person types them.
#pragma once

#include <QDate>
#include <QLocale>
#include <QString>
#include <QTime>

#include <optional>

// What a date picker goes through.
inline const QDate earliestDay(1752, 9, 14);
inline const QDate latestDay(9999, 12, 31);

/// The date meant by a text, or none: never another date. Day, month and year stand in the order
/// of the format, between separators of any kind or, with all their digits, without; a year of four
/// digits may come first in any locale, a month may be called by its name. A year of two digits
/// lies at most 20 years ahead of today; 19 and 20 are the first half of a year and no year.
std::optional<QDate> readDate(const QString &text, const QLocale &locale, const QString &format,
                              QDate today);

/// The time meant by a text of hour and minutes, or none. The half of the day, "a" or "p" at least
/// or a beginning of the locale's own word, may follow on any clock, and has to on a 12-hour one
/// unless the hour tells by itself.
std::optional<QTime> readTime(const QString &text, const QLocale &locale, bool is24HourClock);

/// The minutes of a span of hours and minutes, "1:30", or none: less than a day, with both digits
/// of the minutes and without a sign, so that one and a half hours are never taken for 1:05.
std::optional<int> readSpan(const QString &text);
