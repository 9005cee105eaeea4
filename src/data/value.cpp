#include "data/value.h"

#include <cmath>
#include <limits>

namespace {

const QDate dayZero(1899, 12, 30);
constexpr int minutesPerDay = 24 * 60;

} // namespace

qint64 dayNumber(QDate date)
{
    return dayZero.daysTo(date);
}

QDate dateOfDayNumber(qint64 day)
{
    return dayZero.addDays(day);
}

double dayFraction(QTime time)
{
    return double(time.hour() * 60 + time.minute()) / minutesPerDay;
}

QTime timeOfDayFraction(double fraction)
{
    if (!std::isfinite(fraction))
        return QTime(0, 0);
    const double minutes = std::round((fraction - std::floor(fraction)) * minutesPerDay);
    const int minute = static_cast<int>(minutes) % minutesPerDay;
    return QTime(minute / 60, minute % 60);
}

double Value::toDouble() const
{
    if (const auto *number = std::get_if<double>(&m_value))
        return *number;
    if (const auto *whole = std::get_if<qint64>(&m_value))
        return double(*whole);
    if (const auto *text = std::get_if<QString>(&m_value))
        return text->toDouble();
    return 0;
}

qint32 Value::toInt32() const
{
    if (const auto *whole = std::get_if<qint64>(&m_value))
        return ::toInt32(*whole);
    return roundToInt32(toDouble());
}

QDate Value::toDate() const
{
    bool isNumber = !isNull();
    if (const auto *text = std::get_if<QString>(&m_value))
        text->toDouble(&isNumber);
    try {
        return isNumber ? dateOfDayNumber(toInt32()) : QDate();
    } catch (const OverflowError &) {
        return {};
    }
}

QString Value::toText() const
{
    if (const auto *text = std::get_if<QString>(&m_value))
        return *text;
    if (const auto *whole = std::get_if<qint64>(&m_value))
        return QString::number(*whole);
    if (const auto *number = std::get_if<double>(&m_value)) {
        // Scaled activities have more than four places; what a person reads has four at most.
        constexpr double readableLimit = 1e21;
        constexpr qint64 greatest = std::numeric_limits<qint64>::max();
        if (std::abs(*number) <= Currency::fromTenThousandths(greatest).toDouble())
            return Currency::fromDouble(*number).toText();
        return std::abs(*number) < readableLimit ? QString::number(*number, 'f', 0)
                                                 : QString::number(*number);
    }
    return {};
}
