#include "progress/progressweeks.h"

#include "data/numbers.h"
#include "progress/timemarks.h"

#include <cmath>
#include <utility>

namespace progress {

namespace {

/// Rounded, so that a change is the difference of the weights that are shown.
std::optional<double> meanWeight(const DaySeries &series, qint16 firstDay, qint16 lastDay)
{
    double sum = 0;
    int measured = 0;
    for (qint16 day = firstDay; day <= lastDay; ++day) {
        const Day &record = series.at(day);
        if (record.source == BodySource::Measured && record.isKnown(Series::Weight)) {
            sum += double(record.weight);
            ++measured;
        }
    }
    return measured > 0 ? std::optional(roundHalfEven(sum / measured, 1)) : std::nullopt;
}

void addCalories(Week &week, const Day &day, const Consumed &consumed)
{
    if (!day.hasCalories)
        return;
    ++week.calorieDays;
    week.balance += day.calories;
    week.eaten += consumed.calories;
    for (const Nutrient n : allNutrients)
        week.byNutrient[n] += consumed.byNutrient[n];
}

Week weekOf(const DaySeries &series, const std::vector<Consumed> &consumed, qint16 firstDay,
            qint16 lastDay)
{
    Week week = {firstDay, lastDay};
    for (qint16 day = firstDay; day <= lastDay; ++day)
        addCalories(week, series.at(day), consumed.at(size_t(day) - 1));
    week.weight = meanWeight(series, firstDay, lastDay);
    for (size_t note = 0; note < series.notes.size(); ++note) {
        if (series.notes[note].DateFrom <= series.date(lastDay) &&
            series.notes[note].DateTo >= series.date(firstDay))
            week.notes.push_back(note);
    }
    return week;
}

std::optional<double> changeBetween(const std::optional<double> &before,
                                    const std::optional<double> &after)
{
    return before && after ? std::optional(roundHalfEven(*after - *before, 1)) : std::nullopt;
}

std::optional<double> changeOver(const std::vector<Week> &weeks)
{
    std::optional<double> first;
    std::optional<double> change;
    for (const Week &week : weeks) {
        if (!week.weight)
            continue;
        change = changeBetween(first, week.weight);
        first = first ? first : week.weight;
    }
    return change;
}

} // namespace

std::optional<Nutrients<int>> Week::shares() const
{
    const double total = byNutrient.sum();
    if (!(total > 0))
        return std::nullopt;
    double sum = 0;
    double before = 0;
    return byNutrient.map([&](double calories) {
        sum += calories;
        const double until = std::round(100 * sum / total);
        return int(until - std::exchange(before, until));
    });
}

std::vector<Consumed> loadConsumed(deData &data, const Period &period)
{
    std::vector<Consumed> days(size_t(period.dateFrom.daysTo(period.dateTo)) + 1);
    Recordset &rows = data.rsConsumedByDay;
    rows.reopen({Value(period.dateFrom), Value(period.dateTo)});
    for (; !rows.isEof(); rows.moveNext()) {
        const qint64 day = period.dateFrom.daysTo(rows.date(commands::curDate));
        days.at(size_t(day)) = {
            rows.number(commands::calories),
            commands::consumed.map([&](const auto &column) { return rows.number(column); })};
    }
    rows.close();
    return days;
}

Weeks weeksOf(const DaySeries &series, const std::vector<Consumed> &consumed, const QLocale &locale)
{
    Weeks found = {{}, weekOf(series, consumed, 1, series.nDays())};
    std::vector<qint16> starts = weekStarts(series.period(), locale);
    if (starts.empty() || starts.front() > 1)
        starts.insert(starts.begin(), 1);
    for (size_t i = 0; i < starts.size(); ++i) {
        const bool isLast = i + 1 == starts.size();
        Week week = weekOf(series, consumed, starts[i],
                           isLast ? series.nDays() : qint16(starts[i + 1] - 1));
        if (i > 0)
            week.change = changeBetween(found.weeks.back().weight, week.weight);
        found.weeks.push_back(std::move(week));
    }
    found.whole.change = changeOver(found.weeks);
    return found;
}

} // namespace progress
