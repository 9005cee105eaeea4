// The journal of a period, day by day.
#pragma once

#include "data/deData.h"
#include "progress/progressperiod.h"
#include "progress/progresstrend.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace progress {

enum class Series
{
    Weight,
    Breast,
    Waist,
    Hips
};
inline constexpr std::array allSeries = {Series::Weight, Series::Breast, Series::Waist,
                                         Series::Hips};

/// Where a day's weight and girths come from.
enum class BodySource
{
    None,     ///< not known
    Measured, ///< a stored measurement
    FilledIn  ///< computed from the measurements around a short gap
};

struct Day
{
    float breast = 0; ///< girths and weight in the user's units
    float waist = -1; ///< -1: no measurement on this day
    float hips = 0;
    float weight = 0;
    qint16 calories = 0; ///< eaten less burnt, kcal; 0 as well where nothing was recorded
    BodySource source = BodySource::None;
    bool hasCalories = false;

    /// What counts as a measurement when gaps are looked for.
    bool isMeasured() const { return waist > 0; }
    float value(Series series) const;
    /// A measurement may leave a value at 0; that is no value to show.
    bool isKnown(Series series) const { return source != BodySource::None && value(series) > 0; }
};

/// Of measured values; minimum > maximum where there is none.
struct Range
{
    float minimum;
    float maximum;

    void widen(float value);
    bool isEmpty() const { return minimum > maximum; }
};

/// What the user aims at, in the user's units; those that are missing are none.
struct Targets
{
    std::array<std::optional<double>, allSeries.size()> values;
    QDate today; ///< from which on they may be reached

    std::optional<double> of(Series series) const { return values[size_t(series)]; }
};

struct Note
{
    QString NoteText;
    QDate DateFrom; ///< the whole note, which may reach beyond the period
    QDate DateTo;
};

/// A measurement or the balance of this day is outside the range of its type.
class DayOverflow : public OverflowError
{
public:
    DayOverflow(QDate of, const std::string &what)
        : OverflowError(what)
        , day(of)
    {
    }

    const QDate day;
};

class DaySeries
{
public:
    /// The longest period, six months, has 185 days.
    static constexpr qint16 mostDays = 186;

    /// Throws OverflowError for a period beyond 16 bits, std::out_of_range for one of more than
    /// mostDays days.
    explicit DaySeries(const Period &period);

    const Period &period() const { return m_period; }
    qint16 nDays() const { return m_nDays; }
    QDate date(qint16 day) const { return m_period.dateFrom.addDays(day - 1); }
    /// Counted from 1; throws OverflowError beyond 16 bits.
    qint16 dayOf(QDate date) const;

    /// A day by its number, 1 to mostDays; throws std::out_of_range for others.
    Day &at(qint16 day) { return m_days.at(indexOf(day)); }
    const Day &at(qint16 day) const { return m_days.at(indexOf(day)); }

    Range girths = {500, 0};
    Range weights = {1000, 0};
    Range calories = {-2000, 2000};
    std::vector<Note> notes;
    Targets targets;

    /// What was measured, in the period and in the days before it that its first averages and a
    /// slope reach back to; a measured value stays here where a gap was filled in over it.
    const MeasuredValues &measured(Series which) const { return m_measured[size_t(which)]; }
    void addMeasured(Series which, const MeasuredValue &value);

    bool hasBody() const { return !weights.isEmpty(); }
    bool hasCalories() const;
    bool isEmpty() const { return !hasBody() && !hasCalories() && notes.empty(); }

    /// Fills the gaps of one or two days that have a measurement before and after them.
    void Approximate();

private:
    static size_t indexOf(qint16 day);
    void ApproximateSpan(qint16 first, qint16 last);

    Period m_period;
    qint16 m_nDays;
    std::array<Day, mostDays> m_days;
    std::array<MeasuredValues, allSeries.size()> m_measured;
};

/// Reads a period. The balance of a day takes a whole day of background burn from what was
/// recorded. Throws StoreError; DayOverflow where a balance exceeds 16 bits or a measurement
/// single precision; std::out_of_range as DaySeries does.
DaySeries loadSeries(deData &data, const Period &period, double metabolicRate);

} // namespace progress
