#include "session/session.h"

#include "data/numbers.h"

using namespace Qt::Literals;

Session::Session(deData &data, const Clock &clock, const QLocale &locale)
    : m_data(data)
    , m_text(locale)
{
    const QDateTime now = clock.now();
    m_currentDate = now.date();
    setCurrentTime(now.time());
}

void Session::setCurrentDate(QDate date)
{
    if (!date.isValid() || date == m_currentDate)
        return;
    m_currentDate = date;
    Q_EMIT dayChanged();
}

void Session::setCurrentTime(QTime time)
{
    m_currentTime = QTime(time.hour(), time.minute());
}

void Session::readCommonParameters()
{
    Recordset &common = m_data.rsCommon;
    if (!common.isOpen())
        common.open();
    CommonParameters stored;
    stored.weight = roundToInt16(common.number("weight"_L1));
    stored.measurement = common.text("Measurement"_L1);
    stored.metabolicRate = common.number("metabolicRate"_L1);
    m_parameters = stored;
}

QString Session::listTimeFormat() const
{
    return is24HourClock() ? QStringLiteral("Hh:Nn") : QStringLiteral("h:Nn am/pm");
}

QString Session::pickerTimeFormat() const
{
    return is24HourClock() ? QStringLiteral("H:mm") : QStringLiteral("h:mm tt");
}

QString Session::qtPickerTimeFormat() const
{
    return is24HourClock() ? QStringLiteral("H:mm") : QStringLiteral("h:mm ap");
}
