// How the geometry of the daily chart is built.
#pragma once

#include "chart/activityblocks.h"
#include "chart/charttexts.h"
#include "chart/daybalance.h"
#include "chart/daygeometry.h"

namespace daychart {

/// Lays the day out in an area. Never fails: what finds no room in a small area is left out.
DayGeometry dayGeometry(const DayData &day, const QRectF &area, const TextMetrics &metrics,
                        const ChartTexts &texts);

inline constexpr double labelGap = 0.4; ///< in heights of a line of text

struct LegendRow
{
    Part part;
    qint64 calories;
};

/// Builds the geometry step by step: first all heights, which fix the scales and with them the
/// widths of the labels beside the plot, then the plot between those labels.
class DayLayout
{
public:
    DayLayout(const DayData &day, const QRectF &area, const TextMetrics &metrics,
              const ChartTexts &texts)
        : m_day(day)
        , m_metrics(metrics)
        , m_texts(texts)
        , m_notDrawn(texts.notDrawn(day))
        , m_figures(dayFigures(day))
        , m_curve(balanceCurve(day))
        , m_nowBalance(day.now ? balanceAt(m_curve, *day.now) : 0)
    {
        g.area = area;
        g.unit = metrics.lineHeight;
    }

    DayGeometry build()
    {
        layRows();
        scaleMeals();
        scaleBurn();
        scaleBalance();
        layColumns();
        placeFigures();
        placeHeader(Lane::Meals);
        placeHeader(Lane::Activities);
        placeTimeAxis();
        placeItems();
        placeValueLabels();
        placeBalance();
        placeHints();
        placeNow();
        placeNotDrawn();
        return std::move(g);
    }

private:
    struct NamedFigure
    {
        QString name;
        QString value;
    };

    double em(double count) const { return count * g.unit; }
    /// The least distance of labelled values: fewer than eight to a lane, however high it is.
    double ticksApart() const { return std::max(em(2.2), (m_plotBottom - m_plotTop) / 16); }
    double width(const QString &text, TextRole role = TextRole::Plain) const
    {
        return m_metrics.width(text, role);
    }
    LaneGeometry &lane(Lane which) { return which == Lane::Meals ? g.meals : g.activities; }
    std::vector<LegendRow> legend(Lane which) const;
    double legendWidth(bool withValues) const;

    void layRows();
    void scaleMeals();
    void scaleBurn();
    void scaleBalance();
    void layColumns();
    void placeFigures();
    double placeFigure(double x, const NamedFigure &figure, bool withUnit);
    std::optional<NamedFigure> leftOfBudget() const;
    std::optional<NamedFigure> balanceSoFar() const;
    void placeHeader(Lane which);
    void placeTimeAxis();
    void placeItems();
    void placeValueLabels();
    void placeBalance();
    void placeHints();
    void placeNow();
    std::optional<PlacedText> nowLabel(double x) const;
    bool isFree(const QRectF &rect) const;
    void placeNotDrawn();

    DayGeometry g;
    const DayData &m_day;
    const TextMetrics &m_metrics;
    const ChartTexts &m_texts;
    const QStringList m_notDrawn; ///< a line for each below the time axis
    DayFigures m_figures;
    std::vector<BalancePoint> m_curve;
    double m_nowBalance; ///< at the present minute
    QRectF m_figureRow;
    double m_plotTop = 0;
    double m_plotBottom = 0;
    double m_headerWidth = 0;
    bool m_legendValues = false;
    double m_mealStep = 1;
    double m_burnStep = 1;
    double m_balanceStep = 1;
    ValueScale m_balanceScale;
    BurnStack m_stack;
};

} // namespace daychart
