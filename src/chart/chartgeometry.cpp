#include "chart/chartgeometry.h"

#include "chart/activityblocks.h"
#include "chart/charttexts.h"
#include "chart/itemlabels.h"
#include "chart/mealcolumns.h"

#include <cmath>

namespace daychart {

namespace {

struct LegendRow
{
    Part part;
    qint64 calories;
};

/// Builds the geometry step by step: first all heights, which fix the scales and with them the
/// widths of the labels beside the plot, then the plot between those labels.
class Layout
{
public:
    Layout(const DayData &day, const QRectF &area, const TextMetrics &metrics,
           const ChartTexts &texts)
        : m_day(day)
        , m_metrics(metrics)
        , m_texts(texts)
        , m_notDrawn(texts.notDrawn(day))
        , m_figures(dayFigures(day))
        , m_curve(balanceCurve(day))
    {
        g.area = area;
        g.unit = metrics.lineHeight;
    }

    ChartGeometry build()
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
        placeNotDrawn();
        return std::move(g);
    }

private:
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
    double placeFigure(double x, const QString &name, const QString &value, bool withUnit);
    void placeHeader(Lane which);
    void placeTimeAxis();
    void placeItems();
    void placeValueLabels();
    void placeBalance();
    void placeHints();
    void placeNotDrawn();

    ChartGeometry g;
    const DayData &m_day;
    const TextMetrics &m_metrics;
    const ChartTexts &m_texts;
    const QStringList m_notDrawn; ///< a line for each below the time axis
    DayFigures m_figures;
    std::vector<BalancePoint> m_curve;
    QRectF m_figureRow;
    double m_plotTop = 0;
    double m_plotBottom = 0;
    double m_headerWidth = 0;
    bool m_legendValues = false;
    double m_mealStep = 1;
    double m_burnStep = 1;
    double m_balanceStep = 1;
    double m_balancePerValue = 0;
    BurnStack m_stack;
};

constexpr double margin = 0.75;
constexpr double labelGap = 0.4;

void Layout::layRows()
{
    m_figureRow = QRectF(g.area.left() + em(margin), g.area.top() + em(margin),
                         std::max(1.0, g.area.width() - em(2 * margin)), m_metrics.figureHeight);
    m_plotTop = m_figureRow.bottom() + em(0.8);
    m_plotBottom =
        std::max(m_plotTop + 2, g.area.bottom() - em(2.1 + 1.1 * double(m_notDrawn.size())));
    g.balanceZeroY = std::round((m_plotTop + m_plotBottom) / 2);
}

void Layout::scaleMeals()
{
    const double height = g.balanceZeroY - m_plotTop;
    const double labelRoom = std::min(em(1.3), height / 3);
    const bool negative =
        std::any_of(m_day.meals.begin(), m_day.meals.end(), [](const MealItem &meal) {
            return std::min({meal.carbohydrate, meal.fat, meal.protein}) < 0;
        });
    g.meals.scale =
        mealScale(m_day, m_plotTop + labelRoom, g.balanceZeroY - (negative ? labelRoom : 0));
    m_mealStep = std::max(1.0, roundStep(ticksApart() / g.meals.scale.perValue));
    g.meals.gridLines = ticksBetween(g.meals.scale, m_mealStep, m_plotTop, g.balanceZeroY);
}

void Layout::scaleBurn()
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
        return fittedScale(m_stack.low, high, top, bottom);
    };
    m_stack = stackedBurn(m_day, shortest, 0);
    g.activities.scale = fitted();
    if (g.activities.scale.perValue > 0) {
        m_stack = stackedBurn(m_day, shortest, em(0.25) / g.activities.scale.perValue);
        g.activities.scale = fitted();
    }
    m_burnStep = roundStep(ticksApart() / g.activities.scale.perValue);
    g.activities.gridLines =
        ticksBetween(g.activities.scale, m_burnStep, top - em(0.3), m_plotBottom);
}

void Layout::scaleBalance()
{
    double low = 0;
    double high = 0;
    for (const BalancePoint &point : m_curve) {
        low = std::min(low, point.calories);
        high = std::max(high, point.calories);
    }
    const double inset = std::min(em(0.7), (m_plotBottom - m_plotTop) / 8);
    const ValueScale scale =
        scaleAround(g.balanceZeroY, low, high, m_plotTop + inset, m_plotBottom - inset);
    m_balancePerValue = scale.perValue;
    if (scale.perValue > 0)
        m_balanceStep = std::max(1.0, roundStep(ticksApart() / scale.perValue));
    g.balanceMarks = ticksBetween(scale, m_balanceStep, scale.y(high), scale.y(low));
}

std::vector<LegendRow> Layout::legend(Lane which) const
{
    if (which == Lane::Meals)
        return {{Part::Carbohydrate, m_figures.carbohydrate},
                {Part::Fat, m_figures.fat},
                {Part::Protein, m_figures.protein}};
    return {{Part::Activity, m_figures.activities}, {Part::Background, m_figures.background}};
}

double Layout::legendWidth(bool withValues) const
{
    double widestName = 0;
    double widestValue = 0;
    double widestHead = 0;
    for (const Lane which : {Lane::Meals, Lane::Activities}) {
        widestHead = std::max({widestHead, width(m_texts.unit(which)),
                               width(m_texts.caption(which), TextRole::Caption) + em(0.8)});
        for (const LegendRow &row : legend(which)) {
            widestName = std::max(widestName, width(m_texts.part(row.part)));
            widestValue = std::max(widestValue, width(m_texts.number(row.calories)));
        }
    }
    const double row = em(1.2) + widestName + (withValues ? em(0.8) + widestValue : 0);
    return std::ceil(std::max(row, widestHead) + em(0.6));
}

/// The widths of what stands left and right of the plot, and the plot between.
void Layout::layColumns()
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

void Layout::placeFigures()
{
    const QString eaten = m_texts.number(m_figures.eaten());
    const QString burnt = m_texts.number(m_figures.burnt());
    const QString balance = m_texts.balance(m_figures.balance());
    double words = em(0.5 * 3 + 1.7);
    for (const QString &name : {m_texts.eaten(), m_texts.burnt(), m_texts.part(Part::Balance)})
        words += width(name);
    for (const QString &value : {eaten, burnt, balance})
        words += width(value, TextRole::Figure);
    const double units = 3 * (width(m_texts.unit(Lane::Meals)) + em(0.3));
    const bool withUnit = words + units + em(4) <= m_figureRow.width();
    const double apart =
        std::clamp((m_figureRow.width() - words - (withUnit ? units : 0)) / 2, 0.0, em(2));

    double x = m_figureRow.left();
    const auto target = [&](double from, double to) {
        return QRectF(QPointF(from, m_figureRow.top()), QPointF(to, m_figureRow.bottom()))
            .adjusted(-em(0.3), -em(0.2), em(0.3), em(0.2));
    };
    double end = placeFigure(x, m_texts.eaten(), eaten, withUnit);
    g.meals.figure = target(x, end);
    x = end + apart;
    end = placeFigure(x, m_texts.burnt(), burnt, withUnit);
    g.activities.figure = target(x, end);
    x = end + apart;
    g.swatches.push_back(
        {QRectF(x, m_figureRow.top(), em(1.3), m_figureRow.height()), Part::Balance});
    placeFigure(x + em(1.7), m_texts.part(Part::Balance), balance, withUnit);
}

/// Name, figure and unit on one base line; returns where they end.
double Layout::placeFigure(double x, const QString &name, const QString &value, bool withUnit)
{
    const double lift = 0.2 * (m_metrics.figureHeight - m_metrics.lineHeight);
    const auto place = [&](const QString &text, TextRole role, Tone tone) {
        const QRectF rect(x, m_figureRow.top(), width(text, role), m_figureRow.height());
        const bool plain = role == TextRole::Plain;
        g.texts.push_back({rect.translated(0, plain ? -lift : 0), text,
                           Qt::AlignLeft | Qt::AlignBottom, role, tone});
        x = rect.right();
    };
    place(name, TextRole::Plain, Tone::Muted);
    x += em(0.5);
    place(value, TextRole::Figure, Tone::Ink);
    if (withUnit) {
        x += em(0.3);
        place(m_texts.unit(Lane::Meals), TextRole::Plain, Tone::Muted);
    }
    return x;
}

/// Caption, unit and legend from the top of the lane down, as many lines as there is room for.
void Layout::placeHeader(Lane which)
{
    LaneGeometry &current = lane(which);
    const double left = m_figureRow.left();
    const double right = left + m_headerWidth - em(0.6);
    double y = current.area.top() + em(which == Lane::Meals ? 0 : 0.6);
    const double bottom = current.area.bottom();
    const auto line = [&](double height) {
        const QRectF rect(left, y, right - left, height);
        y += height;
        return rect;
    };
    const QString caption = m_texts.caption(which);
    const QRectF captionRect = line(em(1.15));
    const Qt::Alignment beginning = Qt::AlignLeft | Qt::AlignVCenter;
    g.texts.push_back({captionRect, caption, beginning, TextRole::Caption});
    if (y + em(1.1) <= bottom)
        g.texts.push_back(
            {line(em(1.1)), m_texts.unit(which), beginning, TextRole::Plain, Tone::Muted});
    y += em(0.3);
    for (const LegendRow &row : legend(which)) {
        if (y + em(1.3) > bottom)
            break;
        QRectF rect = line(em(1.3));
        g.swatches.push_back(
            {QRectF(left, rect.center().y() - em(0.4), em(0.8), em(0.8)), row.part});
        const QString name = m_texts.part(row.part);
        g.texts.push_back(
            {QRectF(left + em(1.2), rect.top(), width(name), rect.height()), name, beginning});
        if (m_legendValues) {
            const QString value = m_texts.number(row.calories);
            rect.setLeft(right - width(value));
            g.texts.push_back({rect, value, Qt::AlignRight | Qt::AlignVCenter});
        }
    }
    current.header = QRectF(QPointF(left, captionRect.top()), QPointF(right, y))
                         .adjusted(-em(0.35), -em(0.25), em(0.35), em(0.25));
}

void Layout::placeTimeAxis()
{
    double widest = 0;
    for (int hour = 0; hour <= 24; ++hour)
        widest = std::max(widest, width(m_texts.hour(hour * 60)));
    const int step = hourLabelStep(g.time, widest + em(0.9));
    for (int minute = 0; minute <= minutesPerDay; minute += step) {
        const double x = std::round(g.time.x(minute));
        g.hourLines.push_back(x);
        g.texts.push_back({QRectF(x - widest / 2, g.timeAxis.top() + em(0.5), widest, em(1)),
                           m_texts.hour(minute), Qt::AlignCenter, TextRole::Plain, Tone::Muted});
    }
    if (g.time.width / 24 >= em(0.5)) {
        for (int hour = 0; hour <= 24; ++hour)
            g.hourMarks.push_back(std::round(g.time.x(hour * 60)));
    }
}

void Layout::placeItems()
{
    g.columns = mealColumns(m_day, g.time, g.meals.scale, g.unit);
    g.blocks = activityBlocks(m_stack, g.time, g.activities.scale);
    g.band = QRectF(QPointF(g.time.left, g.activities.scale.y(m_day.backgroundRate)),
                    QPointF(g.time.left + g.time.width, g.activities.scale.zeroY))
                 .normalized();
    g.mealLabels = mealLabels(m_day, g.columns, g.meals, m_metrics, m_texts);
    g.activityLabels = activityLabels(m_day, g.blocks, g.activities, m_metrics, m_texts);
}

/// The labels at the left of both lanes; from here on the grid lines are heights.
void Layout::placeValueLabels()
{
    const auto place = [this](LaneGeometry &current, double step) {
        for (double &value : current.gridLines) {
            const QString text = m_texts.tick(value, step);
            const double w = width(text);
            value = std::round(current.scale.y(value));
            g.texts.push_back({QRectF(g.time.left - em(labelGap) - w, value - em(0.5), w, em(1)),
                               text, Qt::AlignRight | Qt::AlignVCenter, TextRole::Plain,
                               Tone::Muted});
        }
    };
    place(g.meals, m_mealStep);
    place(g.activities, m_burnStep);
}

void Layout::placeBalance()
{
    const ValueScale scale = {g.balanceZeroY, m_balancePerValue};
    for (const BalancePoint &point : m_curve)
        g.balance.push_back({g.time.x(point.minute), scale.y(point.calories)});

    const double left = g.time.left + g.time.width + em(labelGap);
    const QString end = m_texts.balance(m_figures.balance());
    const double endY =
        std::clamp(g.balance.back().y(), m_plotTop + em(0.6), m_plotBottom - em(0.6));
    g.balanceEnd = {QRectF(left, endY - em(0.6), width(end, TextRole::Caption) + em(0.6), em(1.2)),
                    end, Qt::AlignCenter, TextRole::Caption, Tone::Balance};
    for (double &value : g.balanceMarks) {
        const QString text = m_texts.balance(qRound64(value));
        value = std::round(scale.y(value));
        const QRectF rect(left, value - em(0.5), width(text), em(1));
        if (!rect.intersects(g.balanceEnd.rect))
            g.texts.push_back(
                {rect, text, Qt::AlignLeft | Qt::AlignVCenter, TextRole::Plain, Tone::Muted});
    }
}

void Layout::placeHints()
{
    const auto place = [this](Lane which, double y) {
        const QString text = m_texts.emptyHint(which);
        QRectF rect(0, 0, width(text), em(1.2));
        const QRectF &room = lane(which).area;
        // On the right, where the balance of a day without meals has sunk away from the lane's top.
        rect.moveCenter({room.right() - em(1) - rect.width() / 2, y});
        if (room.contains(rect))
            g.hints.push_back({rect, text, Qt::AlignCenter, TextRole::Plain, Tone::Muted});
    };
    if (m_day.meals.empty())
        place(Lane::Meals, g.meals.area.center().y());
    if (m_day.activities.empty())
        place(Lane::Activities, g.activities.area.top() + em(1.2));
}

void Layout::placeNotDrawn()
{
    double y = g.timeAxis.bottom();
    for (const QString &sentence : m_notDrawn) {
        g.texts.push_back({QRectF(m_figureRow.left(), y, m_figureRow.width(), em(1.1)), sentence,
                           Qt::AlignLeft | Qt::AlignVCenter});
        y += em(1.1);
    }
}

} // namespace

ChartGeometry chartGeometry(const DayData &day, const QRectF &area, const TextMetrics &metrics,
                            const ChartTexts &texts)
{
    return Layout(day, area, metrics, texts).build();
}

} // namespace daychart
