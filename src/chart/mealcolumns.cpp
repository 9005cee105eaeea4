#include "chart/mealcolumns.h"

#include "chart/drawnlimit.h"

#include <cmath>
#include <numeric>

namespace daychart {

namespace {

/// Calories above and below zero; with negative quantities a meal can have both.
struct Extent
{
    double up = 0;
    double down = 0;
    double largest() const { return std::max(up, down); }
};

Extent extentOf(const MealItem &meal)
{
    Extent extent;
    for (const int calories : meal.byNutrient)
        (calories > 0 ? extent.up : extent.down) += std::abs(double(calories));
    return extent;
}

double limitOf(const DayData &day)
{
    std::vector<double> magnitudes;
    for (const MealItem &meal : day.meals)
        magnitudes.push_back(extentOf(meal).largest());
    return drawnLimit(std::move(magnitudes));
}

/// Columns that touch and therefore move as one. Positions are counted without the columns before,
/// so that columns side by side share one position.
struct Cluster
{
    double sum = 0;
    int count = 0;
    double mean() const { return sum / count; }
};

/// Centres at least pitch apart, in the given order, each as near as possible to where it is
/// wanted (least squares, by pooling neighbours that meet).
std::vector<double> spreadOut(const std::vector<double> &wanted, double pitch, double first,
                              double last)
{
    std::vector<Cluster> clusters;
    for (size_t i = 0; i < wanted.size(); ++i) {
        clusters.push_back({wanted[i] - pitch * double(i), 1});
        while (clusters.size() > 1 && clusters.back().mean() < clusters.end()[-2].mean()) {
            const Cluster met = clusters.back();
            clusters.pop_back();
            clusters.back().sum += met.sum;
            clusters.back().count += met.count;
        }
    }
    const double lastMean = std::max(first, last - pitch * double(wanted.size() - 1));
    std::vector<double> centres;
    centres.reserve(wanted.size());
    for (const Cluster &cluster : clusters) {
        for (int i = 0; i < cluster.count; ++i)
            centres.push_back(std::clamp(cluster.mean(), first, lastMean) +
                              pitch * double(centres.size()));
    }
    return centres;
}

struct Placement
{
    double width = 0;
    std::vector<double> centres;
};

/// The widest columns of which none stands far from its time, or else the narrowest.
Placement placed(const std::vector<double> &wanted, const TimeScale &time, double unit)
{
    const double right = time.left + time.width;
    const double widestPitch = time.width / double(std::max<size_t>(1, wanted.size()));
    const double narrowest = std::min(0.35 * unit, 0.8 * widestPitch);
    Placement result;
    for (double width = std::min(1.6 * unit, 0.8 * widestPitch);; width *= 0.85) {
        result.width = std::max(width, narrowest);
        const double gap = std::min(0.15 * unit, 0.25 * result.width);
        result.centres = spreadOut(wanted, result.width + gap, time.left + result.width / 2,
                                   right - result.width / 2);
        double furthest = 0;
        for (size_t i = 0; i < wanted.size(); ++i)
            furthest = std::max(furthest, std::abs(result.centres[i] - wanted[i]));
        if (furthest <= 0.8 * unit || width <= narrowest)
            return result;
    }
}

/// Stacks the parts away from zero; a column too low to be seen is stretched to a stub.
MealColumn columnOf(const MealItem &meal, double centre, double width, const ValueScale &scale,
                    double limit, double unit)
{
    const Extent extent = extentOf(meal);
    const double cutting = extent.largest() > limit ? limit / extent.largest() : 1;
    const double height = extent.largest() * cutting * scale.perValue;
    const double stub = 0.25 * unit;
    const double stretch = height > 0 && height < stub ? stub / height : 1;
    const double perCalorie = scale.perValue * cutting * stretch;

    MealColumn column;
    column.cut = cutting < 1;
    const double left = centre - width / 2;
    double up = scale.zeroY;
    double down = scale.zeroY;
    for (const Nutrient n : stackedNutrients) {
        const int calories = meal.byNutrient[n];
        const double length = std::abs(double(calories)) * perCalorie;
        if (calories > 0)
            up -= length;
        if (calories != 0)
            column.parts[n] = QRectF(left, calories > 0 ? up : down, width, length);
        if (calories < 0)
            down += length;
    }
    if (!(down > up))
        up = scale.zeroY - stub;
    column.rect = QRectF(QPointF(left, up), QPointF(left + width, down));
    return column;
}

} // namespace

ValueScale mealScale(const DayData &day, double topY, double bottomY)
{
    const double limit = limitOf(day);
    double low = 0;
    double high = 0;
    for (const MealItem &meal : day.meals) {
        const Extent extent = extentOf(meal);
        low = std::min(low, -std::min(extent.down, limit));
        high = std::max(high, std::min(extent.up, limit));
    }
    if (low == 0 && high == 0)
        high = 500; // an axis to look at until there is something to measure
    return plot::fittedScale(low, high, topY, bottomY);
}

std::vector<MealColumn> mealColumns(const DayData &day, const TimeScale &time,
                                    const ValueScale &scale, double unit)
{
    std::vector<size_t> order(day.meals.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(),
                     [&day](size_t a, size_t b) { return day.meals[a].time < day.meals[b].time; });
    std::vector<double> wanted;
    wanted.reserve(order.size());
    for (const size_t i : order)
        wanted.push_back(time.x(minuteOf(day.meals[i].time)));

    const double limit = limitOf(day);
    const Placement placement = placed(wanted, time, unit);
    std::vector<MealColumn> columns(day.meals.size());
    for (size_t i = 0; i < order.size(); ++i) {
        columns[order[i]] = columnOf(day.meals[order[i]], placement.centres[i], placement.width,
                                     scale, limit, unit);
        columns[order[i]].timeX = wanted[i];
    }
    return columns;
}

} // namespace daychart
