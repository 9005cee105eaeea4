// One value of a database row or of a command's parameter.
#pragma once

#include "data/currency.h"

#include <QDate>
#include <QString>
#include <QTime>

#include <variant>

/// Days since 30 December 1899, the day number 0 of the schema.
qint64 dayNumber(QDate date);
QDate dateOfDayNumber(qint64 day);

/// Time of day as a fraction of a day in whole minutes; seconds are dropped.
double dayFraction(QTime time);
/// The nearest minute of a fraction; whole days are ignored, infinities are midnight.
QTime timeOfDayFraction(double fraction);

/// Null, a whole number, a floating-point number or a text. Dates, times of day and decimals are
/// kept as the schema counts them.
class Value
{
public:
    Value() = default;
    Value(int value)
        : m_value(qint64(value))
    {
    }
    Value(qint64 value)
        : m_value(value)
    {
    }
    Value(double value)
        : m_value(value)
    {
    }
    Value(float value)
        : m_value(double(value))
    {
    }
    Value(Currency value)
        : m_value(value.toDouble())
    {
    }
    Value(QDate date)
        : m_value(dayNumber(date))
    {
    }
    Value(QTime time)
        : m_value(dayFraction(time))
    {
    }
    Value(const QString &text)
        : m_value(text)
    {
    }
    Value(const char *) = delete;
    Value(bool) = delete;

    using Storage = std::variant<std::monostate, qint64, double, QString>;
    const Storage &storage() const { return m_value; }

    bool isNull() const { return std::holds_alternative<std::monostate>(m_value); }
    /// Conversions. Null gives 0 or the empty text; a text that is no number counts as 0; whole
    /// numbers are rounded half to even and throw OverflowError outside their range. What is no
    /// day is the invalid date.
    qint32 toInt32() const;
    double toDouble() const;
    Currency toCurrency() const { return Currency::fromDouble(toDouble()); }
    QDate toDate() const;
    QTime toTime() const { return timeOfDayFraction(toDouble()); }
    /// Plain decimal text with a point; a number with at most four decimals reads as typed.
    QString toText() const;

private:
    Storage m_value;
};
