#include "chart/daylayout.h"
#include "chart/itemlabels.h"
#include "chart/mealcolumns.h"

#include <cmath>

namespace daychart {

namespace {

constexpr double margin = 0.75;

} // namespace

void DayLayout::layRows()
{
    m_figureRow = QRectF(g.area.left() + em(margin), g.area.top() + em(margin),
                         std::max(1.0, g.area.width() - em(2 * margin)), m_metrics.figureHeight);
    m_plotTop = m_figureRow.bottom() + em(0.8);
    m_plotBottom =
        std::max(m_plotTop + 2, g.area.bottom() - em(2.1 + 1.1 * double(m_notDrawn.size())));
    g.balanceZeroY = std::round((m_plotTop + m_plotBottom) / 2);
}

void DayLayout::scaleMeals()
{
    const double height = g.balanceZeroY - m_plotTop;
    const double labelRoom = std::min(em(1.3), height / 3);
    const bool negative =
        std::any_of(m_day.meals.begin(), m_day.meals.end(), [](const MealItem &meal) {
            return *std::min_element(meal.byNutrient.begin(), meal.byNutrient.end()) < 0;
        });
    g.meals.scale =
        mealScale(m_day, m_plotTop + labelRoom, g.balanceZeroY - (negative ? labelRoom : 0));
    m_mealStep = std::max(1.0, plot::roundStep(ticksApart() / g.meals.scale.perValue));
    g.meals.gridLines = plot::ticksBetween(g.meals.scale, m_mealStep, m_plotTop, g.balanceZeroY);
}

void DayLayout::scaleBurn()
{
    const double top = g.balanceZeroY + std::min(em(1.3), (m_plotBottom - g.balanceZeroY) / 3);
    // The plot's width is not known yet; what share it has of the area is near enough for the
    // least width of a block.
    const double shortest = em(0.35) / std::max(1.0, 0.75 * g.area.width()) * minutesPerDay;
    const auto fitted = [&] {
        double high = std::max(m_stack.high, 3 * m_day.backgroundRate);
        if (high == 0 && m_stack.low == 0)
            high = 5;
        const double bottom = m_plotBottom - (m_stack.low < 0 ? em(0.4) : 0);
        return plot::fittedScale(m_stack.low, high, top, bottom);
    };
    m_stack = stackedBurn(m_day, shortest, 0);
    g.activities.scale = fitted();
    if (g.activities.scale.perValue > 0) {
        m_stack = stackedBurn(m_day, shortest, em(0.25) / g.activities.scale.perValue);
        g.activities.scale = fitted();
    }
    m_burnStep = plot::roundStep(ticksApart() / g.activities.scale.perValue);
    g.activities.gridLines =
        plot::ticksBetween(g.activities.scale, m_burnStep, top - em(0.3), m_plotBottom);
}

void DayLayout::scaleBalance()
{
    double low = 0;
    double high = 0;
    for (const BalancePoint &point : m_curve) {
        low = std::min(low, point.calories);
        high = std::max(high, point.calories);
    }
    const double inset = std::min(em(0.7), (m_plotBottom - m_plotTop) / 8);
    m_balanceScale =
        plot::scaleAround(g.balanceZeroY, low, high, m_plotTop + inset, m_plotBottom - inset);
    if (m_balanceScale.perValue > 0)
        m_balanceStep = std::max(1.0, plot::roundStep(ticksApart() / m_balanceScale.perValue));
    g.balanceMarks = plot::ticksBetween(m_balanceScale, m_balanceStep, m_balanceScale.y(high),
                                        m_balanceScale.y(low));
}

/// The widths of what stands left and right of the plot, and the plot between.
void DayLayout::layColumns()
{
    m_legendValues = legendWidth(true) <= 0.22 * g.area.width();
    m_headerWidth = legendWidth(m_legendValues);
    double leftLabels = 0;
    for (const double value : g.meals.gridLines)
        leftLabels = std::max(leftLabels, width(m_texts.tick(value, m_mealStep)));
    for (const double value : g.activities.gridLines)
        leftLabels = std::max(leftLabels, width(m_texts.tick(value, m_burnStep)));
    double rightLabels = width(m_texts.balance(m_figures.balance()), TextRole::Caption) + em(0.6);
    for (const double value : g.balanceMarks)
        rightLabels = std::max(rightLabels, width(m_texts.balance(qRound64(value))));
    const double lastHour = width(m_texts.hour(minutesPerDay)) / 2;

    const double left = std::round(m_figureRow.left() + m_headerWidth + leftLabels + em(labelGap));
    const double right =
        std::round(g.area.right() - std::max(rightLabels + em(labelGap), lastHour) - em(0.5));
    g.time = {left, std::max(1.0, right - left)};
    const auto strip = [&](double top, double bottom) {
        return QRectF(QPointF(left, top), QPointF(left + g.time.width, bottom));
    };
    g.meals.area = strip(m_plotTop, g.balanceZeroY);
    g.activities.area = strip(g.balanceZeroY, m_plotBottom);
    g.timeAxis = strip(m_plotBottom, m_plotBottom + em(1.6));
}

void DayLayout::placeItems()
{
    g.columns = mealColumns(m_day, g.time, g.meals.scale, g.unit);
    g.blocks = activityBlocks(m_stack, g.time, g.activities.scale);
    g.band = QRectF(QPointF(g.time.left, g.activities.scale.y(m_day.backgroundRate)),
                    QPointF(g.time.left + g.time.width, g.activities.scale.zeroY))
                 .normalized();
    for (const BalancePoint &point : m_curve)
        g.balance.push_back({g.time.x(point.minute), m_balanceScale.y(point.calories)});
    g.mealLabels = mealLabels(m_day, g.columns, g.meals, g.balance, m_metrics, m_texts);
    g.activityLabels = activityLabels(m_day, g.blocks, g.activities, g.balance, m_metrics, m_texts);
}

void DayLayout::placeBalance()
{
    const double left = g.time.left + g.time.width + em(labelGap);
    const QString end = m_texts.balance(m_figures.balance());
    const double endY =
        std::clamp(g.balance.back().y(), m_plotTop + em(0.6), m_plotBottom - em(0.6));
    g.balanceEnd = {QRectF(left, endY - em(0.6), width(end, TextRole::Caption) + em(0.6), em(1.2)),
                    end, Qt::AlignCenter, TextRole::Caption, Tone::OnInk};
    for (double &value : g.balanceMarks) {
        const QString text = m_texts.balance(qRound64(value));
        value = std::round(m_balanceScale.y(value));
        const QRectF rect(left, value - em(0.5), width(text), em(1));
        if (!rect.intersects(g.balanceEnd.rect))
            g.texts.push_back(
                {rect, text, Qt::AlignLeft | Qt::AlignVCenter, TextRole::Plain, Tone::Muted});
    }
}

DayGeometry dayGeometry(const DayData &day, const QRectF &area, const TextMetrics &metrics,
                        const ChartTexts &texts)
{
    return DayLayout(day, area, metrics, texts).build();
}

} // namespace daychart
