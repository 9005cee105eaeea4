#include "session/session.h"

#include "data/numbers.h"

CommonParameters commonParametersOf(const Recordset &common)
{
    common.currency(
        schema::Common::metabolicRate); // raised here, a chart need not count with infinities
    return {roundToInt16(common.number(schema::Common::weight)),
            common.text(schema::Common::Measurement), common.number(schema::Common::metabolicRate)};
}

Session::Session(deData &data, const Clock &clock, const QLocale &locale)
    : m_data(data)
    , m_clock(clock)
    , m_text(locale)
    , m_history(data.Con)
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
    m_data.rsCommon.reopen();
    setParameters(commonParametersOf(m_data.rsCommon));
}

void Session::setParameters(const CommonParameters &parameters)
{
    if (parameters == m_parameters)
        return;
    m_parameters = parameters;
    Q_EMIT parametersChanged();
}

void Session::requireCurrentParameters()
{
    m_data.rsCommon.reopen();
    if (commonParametersOf(m_data.rsCommon) != m_parameters)
        throw StoreError(StoreError::Kind::ParametersChanged,
                         "another program has changed the common parameters");
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
