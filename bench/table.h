// What was measured, as one table of ratios.
#pragma once

#include <QElapsedTimer>
#include <QStringList>

#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

/// Milliseconds of one call.
double timed(const std::function<void()> &action);
/// The middle one; the values are sorted by it.
double median(std::vector<double> &values);

/// What `measure` gives, time after time.
template<typename Measure>
std::vector<double> repeated(int times, Measure measure)
{
    std::vector<double> values(static_cast<size_t>(times));
    std::generate(values.begin(), values.end(), measure);
    return values;
}

/// Two ways of doing the same, measured by turns so that a busy machine slows both: the medians.
struct Compared
{
    double ours = 0;
    double floor = 0;
};
Compared compare(int rounds, const std::function<double()> &ours,
                 const std::function<double()> &floor);

class Table
{
public:
    /// A measurement against a floor, in the given unit; the bound is on their ratio.
    void addRatio(const QString &what, const QString &unit, Compared measured,
                  std::optional<double> bound = {});
    /// A time in milliseconds that must stay below a bound.
    void addTime(const QString &what, double milliseconds, std::optional<double> bound = {});
    /// Prints the rows; false where a bound is missed.
    bool print() const;

private:
    struct Row
    {
        QString what;
        QString measured;
        QString floor;
        QString ratio;
        QString bound;
        bool isMissed = false;
    };

    std::vector<Row> m_rows;
};
