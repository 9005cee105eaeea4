#include "progress/progressseries.h"

#include "data/numbers.h"
#include "data/valuehelpers.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace progress {

namespace {

constexpr double hoursPerDay = 24;

float toSingle(double value)
{
    const auto single = static_cast<float>(value);
    if (!std::isfinite(single))
        throw OverflowError("a measurement is outside the range of single precision");
    return single;
}

/// Stores a row's values on the day that a column names; a fault tells the day.
template<typename Store>
void storeOnDay(DaySeries &series, const Recordset &rows, const schema::Column &dateColumn,
                Store store)
{
    const QDate date = rows.date(dateColumn);
    try {
        store(series.at(series.dayOf(date)));
    } catch (const OverflowError &error) {
        throw DayOverflow(date, error.what());
    }
}

void loadBody(deData &data, DaySeries &series)
{
    Recordset &rows = data.rsGPBody;
    rows.reopen({Value(series.period().dateFrom), Value(series.period().dateTo)});
    for (; !rows.isEof(); rows.moveNext()) {
        storeOnDay(series, rows, schema::Body::DateMeasured, [&](Day &day) {
            day.waist = toSingle(rows.number(schema::Body::Waist));
            day.breast = toSingle(rows.number(schema::Body::Breast));
            day.hips = toSingle(rows.number(schema::Body::Hips));
            day.weight = toSingle(rows.number(schema::Body::Weight));
            day.source = BodySource::Measured;
            for (const float girth : {day.waist, day.breast, day.hips})
                series.girths.widen(girth);
            series.weights.widen(day.weight);
            for (const Series which : allSeries)
                series.addMeasured(
                    which, {rows.date(schema::Body::DateMeasured), double(day.value(which))});
        });
    }
    rows.close();
}

/// The days before the period that its trend reaches back to. A slip of the hand there must not
/// keep the period from being shown.
void loadEarlierBody(deData &data, DaySeries &series)
{
    constexpr double mostBelieved = 1e6;
    const QDate first = series.period().dateFrom;
    Recordset &rows = data.rsGPBody;
    rows.reopen({Value(first.addDays(1 - slopeDays)), Value(first.addDays(-1))});
    for (; !rows.isEof(); rows.moveNext()) {
        for (const auto &[which, column] : {std::pair(Series::Weight, schema::Body::Weight),
                                            {Series::Breast, schema::Body::Breast},
                                            {Series::Waist, schema::Body::Waist},
                                            {Series::Hips, schema::Body::Hips}}) {
            if (rows.number(column) < mostBelieved)
                series.addMeasured(which,
                                   {rows.date(schema::Body::DateMeasured), rows.number(column)});
        }
    }
    rows.close();
}

void loadCalories(deData &data, DaySeries &series, double metabolicRate)
{
    Recordset &rows = data.rsGPCalories;
    rows.reopen({Value(series.period().dateFrom), Value(series.period().dateTo)});
    for (; !rows.isEof(); rows.moveNext()) {
        storeOnDay(series, rows, commands::curDate, [&](Day &day) {
            day.calories =
                roundToInt16(rows.number(commands::calories) - metabolicRate * hoursPerDay);
            day.hasCalories = true;
            series.calories.widen(day.calories);
        });
    }
    rows.close();
}

void loadNotes(deData &data, DaySeries &series)
{
    Recordset &rows = data.rsGPNotes;
    rows.reopen({Value(series.period().dateFrom), Value(series.period().dateTo)});
    series.notes.reserve(rows.rowCount());
    for (; !rows.isEof(); rows.moveNext())
        series.notes.push_back({rows.text(schema::UserNote::NoteText),
                                rows.date(schema::UserNote::DateFrom),
                                rows.date(schema::UserNote::DateTo)});
    rows.close();
}

} // namespace

float Day::value(Series series) const
{
    switch (series) {
    case Series::Breast:
        return breast;
    case Series::Waist:
        return waist;
    case Series::Hips:
        return hips;
    case Series::Weight:
        break;
    }
    return weight;
}

void Range::widen(float value)
{
    maximum = MaxOf(maximum, value);
    minimum = MinOf(minimum, value);
}

DaySeries::DaySeries(const Period &period)
    : m_period(period)
    , m_nDays(toInt16(period.dateFrom.daysTo(period.dateTo) + 1))
{
    if (m_nDays > mostDays)
        throw std::out_of_range("a period of more days than the series holds");
}

qint16 DaySeries::dayOf(QDate date) const
{
    return toInt16(m_period.dateFrom.daysTo(date) + 1);
}

void DaySeries::addMeasured(Series which, const MeasuredValue &value)
{
    if (value.value > 0) // a measurement may leave a value at 0
        progress::addMeasured(m_measured[size_t(which)], value);
}

size_t DaySeries::indexOf(qint16 day)
{
    if (day < 1 || day > mostDays)
        throw std::out_of_range("a day outside the period");
    return size_t(day) - 1;
}

bool DaySeries::hasCalories() const
{
    return std::any_of(m_days.begin(), m_days.end(),
                       [](const Day &day) { return day.hasCalories; });
}

void DaySeries::Approximate()
{
    bool isInGap = false;
    qint16 first = 0;
    for (qint16 day = 1; day <= m_nDays; ++day) {
        if (!at(day).isMeasured() && !isInGap) {
            first = day;
            isInGap = true;
        } else if (at(day).isMeasured() && isInGap) {
            const auto last = qint16(day - 1);
            isInGap = false;
            if (last - first <= 1 && first != 1 && last != m_nDays)
                ApproximateSpan(first, last);
        }
    }
}

void DaySeries::ApproximateSpan(qint16 first, qint16 last)
{
    const Day &before = at(qint16(first - 1));
    const Day &after = at(qint16(last + 1));
    const auto steps = float(last - first + 2);
    for (float Day::*value : {&Day::breast, &Day::waist, &Day::hips, &Day::weight}) {
        // Only the earlier value is divided, not the difference: the series is defined so, and
        // the values filled in do not lie on a straight line between the two measurements.
        const float step = after.*value - before.*value / steps;
        for (qint16 day = first; day <= last; ++day) {
            at(day).*value = toSingle(double(float(day - first + 1) * step + before.*value));
            at(day).source = BodySource::FilledIn;
        }
    }
}

DaySeries loadSeries(deData &data, const Period &period, double metabolicRate)
{
    DaySeries series(period);
    loadEarlierBody(data, series);
    loadBody(data, series);
    loadCalories(data, series, metabolicRate);
    series.Approximate();
    loadNotes(data, series);
    return series;
}

} // namespace progress
