// The words and figures around the plot of the daily chart.
#include "chart/daylayout.h"

#include <algorithm>
#include <cmath>

namespace daychart {

std::vector<LegendRow> DayLayout::legend(Lane which) const
{
    if (which == Lane::Activities)
        return {{Part::Activity, m_figures.activities}, {Part::Background, m_figures.background}};
    std::vector<LegendRow> rows;
    rows.reserve(stackedNutrients.size());
    for (const Nutrient n : stackedNutrients)
        rows.push_back({partOf(n), m_figures.byNutrient[n]});
    return rows;
}

double DayLayout::legendWidth(bool withValues) const
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

void DayLayout::placeFigures()
{
    const QString eaten = m_texts.number(m_figures.eaten());
    const QString burnt = m_texts.number(m_figures.burnt());
    const QString balance = m_texts.balance(m_figures.balance());
    double words = em(0.5 * 3 + 1.7);
    for (const QString &name : {m_texts.eaten(), m_texts.burnt(), m_texts.part(Part::Balance)})
        words += width(name);
    for (const QString &value : {eaten, burnt, balance})
        words += width(value, TextRole::Figure);
    int count = 3;
    const double unit = width(m_texts.unit(Lane::Meals)) + em(0.3);
    const auto fits = [&](double more) { return words + more + em(4) <= m_figureRow.width(); };
    // Where there is room for them behind these three, what is left of the budget, and the balance
    // at the present minute beside that of the day's end.
    const auto takeIfFits = [&](const std::optional<NamedFigure> &figure) {
        if (!figure)
            return false;
        const double more =
            em(1.5) + width(figure->name) + em(0.5) + width(figure->value, TextRole::Figure);
        const bool isTaken = fits(more);
        words += isTaken ? more : 0;
        count += isTaken ? 1 : 0;
        return isTaken;
    };
    const std::optional<NamedFigure> left = leftOfBudget();
    const std::optional<NamedFigure> now = balanceSoFar();
    const bool withLeft = takeIfFits(left);
    const bool withNow = takeIfFits(now);
    const double units = count * unit;
    const bool withUnit = fits(units);
    const double apart =
        std::clamp((m_figureRow.width() - words - (withUnit ? units : 0)) / 2, 0.0, em(2));

    double x = m_figureRow.left();
    const auto target = [&](double from, double to) {
        return QRectF(QPointF(from, m_figureRow.top()), QPointF(to, m_figureRow.bottom()))
            .adjusted(-em(0.3), -em(0.2), em(0.3), em(0.2));
    };
    double end = placeFigure(x, {m_texts.eaten(), eaten}, withUnit);
    g.meals.figure = target(x, end);
    x = end + apart;
    end = placeFigure(x, {m_texts.burnt(), burnt}, withUnit);
    g.activities.figure = target(x, end);
    x = end + apart;
    g.swatches.push_back(
        {QRectF(x, m_figureRow.top(), em(1.3), m_figureRow.height()), Part::Balance});
    end = placeFigure(x + em(1.7), {m_texts.part(Part::Balance), balance}, withUnit);
    if (withNow)
        end = placeFigure(end + em(1.5), *now, withUnit);
    if (withLeft)
        placeFigure(end + em(1.5), *left, withUnit);
}

std::optional<DayLayout::NamedFigure> DayLayout::leftOfBudget() const
{
    if (!m_day.budget)
        return std::nullopt;
    const qint64 left = caloriesOf(*m_day.budget, m_figures) - m_figures.eaten();
    return NamedFigure{m_texts.left(left), m_texts.number(std::abs(left))};
}

std::optional<DayLayout::NamedFigure> DayLayout::balanceSoFar() const
{
    if (!m_day.now)
        return std::nullopt;
    return NamedFigure{m_texts.soFar(), m_texts.balance(qRound64(m_nowBalance))};
}

/// Name, figure and unit on one base line; returns where they end.
double DayLayout::placeFigure(double x, const NamedFigure &figure, bool withUnit)
{
    const double lift = 0.2 * (m_metrics.figureHeight - m_metrics.lineHeight);
    const auto place = [&](const QString &text, TextRole role, Tone tone) {
        const QRectF rect(x, m_figureRow.top(), width(text, role), m_figureRow.height());
        const bool plain = role == TextRole::Plain;
        g.texts.push_back({rect.translated(0, plain ? -lift : 0), text,
                           Qt::AlignLeft | Qt::AlignBottom, role, tone});
        x = rect.right();
    };
    place(figure.name, TextRole::Plain, Tone::Muted);
    x += em(0.5);
    place(figure.value, TextRole::Figure, Tone::Ink);
    if (withUnit) {
        x += em(0.3);
        place(m_texts.unit(Lane::Meals), TextRole::Plain, Tone::Muted);
    }
    return x;
}

/// Caption, unit and legend from the top of the lane down, as many lines as there is room for.
void DayLayout::placeHeader(Lane which)
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

void DayLayout::placeTimeAxis()
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

/// The labels at the left of both lanes; from here on the grid lines are heights.
void DayLayout::placeValueLabels()
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

void DayLayout::placeHints()
{
    const auto place = [this](Lane which, double y) {
        const QString text = m_texts.emptyHint(which);
        QRectF rect(0, 0, width(text), em(1.2));
        const QRectF &room = lane(which).area;
        // On the right, where the balance of a day without meals has sunk away from the lane's top,
        // or else where it covers no corner of the balance.
        const double right = room.right() - em(1) - rect.width() / 2;
        for (const double x : {right, room.center().x(), room.left() + em(1) + rect.width() / 2}) {
            rect.moveCenter({x, y});
            if (room.contains(rect) &&
                std::none_of(g.balance.begin(), g.balance.end(),
                             [&](const QPointF &corner) { return rect.contains(corner); })) {
                g.hints.push_back({rect, text, Qt::AlignCenter, TextRole::Plain, Tone::Muted});
                return;
            }
        }
    };
    if (m_day.meals.empty())
        place(Lane::Meals, g.meals.area.center().y());
    if (m_day.activities.empty())
        place(Lane::Activities, g.activities.area.top() + em(1.2));
}

void DayLayout::placeNotDrawn()
{
    double y = g.timeAxis.bottom();
    for (const QString &sentence : m_notDrawn) {
        g.texts.push_back({QRectF(m_figureRow.left(), y, m_figureRow.width(), em(1.1)), sentence,
                           Qt::AlignLeft | Qt::AlignVCenter});
        y += em(1.1);
    }
}

} // namespace daychart
