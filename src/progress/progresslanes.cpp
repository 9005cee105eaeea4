// What stands in the lanes of the progress chart, and their titles.
#include "progress/progresslayout.h"
#include "progress/progresslines.h"

#include <algorithm>
#include <cmath>

namespace progress {

namespace {

// In heights of a line of text.
constexpr double samplesApart = 1.1;
constexpr double valuesApart = 0.25;

/// A value filled in is no last value, even where the measurement after it left this one out.
double heightAtEnd(const SeriesLine &line)
{
    const auto last = std::find_if(line.marks.rbegin(), line.marks.rend(), [](const Mark &mark) {
        return mark.kind == Mark::Kind::Measured;
    });
    return last == line.marks.rend() ? line.marks.back().at.y() : last->at.y();
}

} // namespace

void ProgressLayout::placeNotes()
{
    if (m_series.notes.empty())
        return;
    const NoteStrip strip = {m_strip, m_noteRows, em(0.25), [this](const QString &letter) {
                                 return width(letter, TextRole::Caption);
                             }};
    g.notes = noteSpans(m_series, strip, g.plot, g.days);
    text(QRectF(g.area.left(), m_strip.top(), m_strip.left() - em(0.4) - g.area.left(),
                m_strip.height()),
         ProgressTexts::tr("Notes"), Qt::AlignRight | Qt::AlignVCenter);
}

void ProgressLayout::placeLines()
{
    if (!m_series.hasBody()) {
        const QString words = ProgressTexts::tr("No measurements in this period");
        sayAcross(g.weight.area, words);
        sayAcross(g.girths.area, words);
        return;
    }
    for (const Series series : allSeries)
        g.lines.push_back(seriesLine(m_series, series, g.laneOf(series), g.days));
    placeLineLabels(g.weight);
    placeLineLabels(g.girths);
}

void ProgressLayout::placeTrend()
{
    g.trend = trendLines(m_averages, g.weight, g.days, em(1));
}

void ProgressLayout::placeTargets()
{
    for (const Series series : allSeries) {
        const std::optional<double> target = m_series.targets.of(series);
        const ProgressLane &lane = g.laneOf(series);
        const bool isOnScale =
            m_series.hasBody() && target && *target >= lane.scale.low && *target <= lane.scale.high;
        if (!isOnScale)
            continue;
        const double y = lane.scale.y(*target);
        g.targets.push_back({series, QLineF(g.plot.left(), y, g.plot.right(), y)});
    }
}

bool ProgressLayout::hasTarget(const ProgressLane &lane) const
{
    return std::any_of(g.targets.begin(), g.targets.end(),
                       [&](const TargetLine &target) { return &g.laneOf(target.series) == &lane; });
}

/// What a line is stands right of the plot, at the height of its last measured value. Labels that
/// would touch are moved apart; one for which the lane is too low is left out.
void ProgressLayout::placeLineLabels(const ProgressLane &lane)
{
    std::vector<SeriesLine *> lines;
    for (SeriesLine &line : g.lines) {
        if (&g.laneOf(line.series) == &lane && !line.marks.empty())
            lines.push_back(&line);
    }
    std::sort(lines.begin(), lines.end(), [](const SeriesLine *a, const SeriesLine *b) {
        return heightAtEnd(*a) < heightAtEnd(*b);
    });
    double lowest = lane.area.bottom() + g.unit / 2; // the next lane's title is further down
    lines.resize(std::min(lines.size(), size_t((lowest - lane.area.top()) / g.unit)));
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        const double bottom = std::min(heightAtEnd(**line) + g.unit / 2, lowest);
        lowest = bottom - g.unit;
        (*line)->label = {besidePlot(bottom - g.unit), lineLabel((*line)->series),
                          Qt::AlignLeft | Qt::AlignVCenter};
    }
    double highest = lane.area.top();
    for (SeriesLine *line : lines) {
        line->label.rect.moveTop(std::max(line->label.rect.top(), highest));
        highest = line->label.rect.bottom();
    }
}

void ProgressLayout::placeBalance()
{
    if (!m_series.hasCalories()) {
        sayAcross(g.balance.area.adjusted(0, 0, 0, -g.balance.area.height() / 2),
                  ProgressTexts::tr("No meals or activities in this period"));
    }
    g.columns = balanceColumns(m_series, g.balance, g.days, em(2.2));
    g.notRecorded = notRecordedStrips(m_series, g.balance, g.days, em(0.36));
    placeBalanceValues();
    if (!m_summary.averageBalance)
        return;
    g.hasAverage = true;
    g.averageY = g.balance.scale.y(*m_summary.averageBalance);
    placeAverageLine();
    const double top = std::min(g.averageY - g.unit / 2, g.balance.area.bottom() - g.unit);
    text(besidePlot(std::max(top, g.balance.area.top())),
         m_texts.change(std::round(*m_summary.averageBalance)), Qt::AlignLeft | Qt::AlignVCenter);
}

/// Beyond the ends of their columns, the largest first; left out where it would cover a neighbour.
void ProgressLayout::placeBalanceValues()
{
    if (!m_hasBalanceValues)
        return;
    const auto size = [this](const BalanceColumn *column) {
        return std::abs(int(m_series.at(column->day).calories));
    };
    std::vector<BalanceColumn *> columns;
    columns.reserve(g.columns.size());
    for (BalanceColumn &column : g.columns)
        columns.push_back(&column);
    std::stable_sort(columns.begin(), columns.end(),
                     [&](const auto *a, const auto *b) { return size(a) > size(b); });
    for (BalanceColumn *column : columns) {
        const QString value = balanceValue(column->day);
        const bool isBelow = m_series.at(column->day).calories < 0;
        QRectF rect(0, isBelow ? column->rect.bottom() : column->rect.top() - g.unit, width(value),
                    g.unit);
        rect.moveLeft(column->rect.center().x() - rect.width() / 2);
        if (hasRoomForValue(*column, rect))
            column->value = {rect, ProgressTexts::withMinus(value)};
    }
}

bool ProgressLayout::hasRoomForValue(const BalanceColumn &column, const QRectF &rect) const
{
    const QRectF around = rect.adjusted(-em(valuesApart), 0, em(valuesApart), 0);
    return rect.left() >= g.plot.left() && rect.right() <= g.plot.right() &&
           std::none_of(g.columns.begin(), g.columns.end(),
                        [&](const BalanceColumn &other) {
                            return (other.day != column.day && other.rect.intersects(around)) ||
                                   other.value.rect.intersects(around);
                        }) &&
           std::none_of(g.notRecorded.begin(), g.notRecorded.end(),
                        [&](const QRectF &strip) { return strip.intersects(rect); });
}

/// Not through the values of columns.
void ProgressLayout::placeAverageLine()
{
    double from = g.plot.left();
    const auto drawTo = [&](double end) {
        if (end > from)
            g.averageLine.emplace_back(from, g.averageY, end, g.averageY);
    };
    for (const BalanceColumn &column : g.columns) {
        const QRectF around = column.value.rect.adjusted(-em(0.1), -em(0.1), em(0.1), em(0.1));
        if (column.value.text.isEmpty() || g.averageY < around.top() ||
            g.averageY > around.bottom())
            continue;
        drawTo(around.left());
        from = around.right();
    }
    drawTo(g.plot.right());
}

void ProgressLayout::placeTicks()
{
    for (ProgressLane *lane : {&g.weight, &g.girths, &g.balance}) {
        for (const double value : lane->scale.ticks(em(ticksApart))) {
            const double y = lane->scale.y(value);
            lane->grid.push_back(y);
            text(QRectF(g.area.left(), y - g.unit / 2, g.days.left - em(0.4) - g.area.left(),
                        g.unit),
                 m_texts.tick(value, lane->scale.step), Qt::AlignRight | Qt::AlignVCenter,
                 TextRole::Plain, Tone::Muted);
        }
    }
}

double ProgressLayout::placeTitle(const ProgressLane &lane, const QString &title)
{
    const double titleWidth = width(title, TextRole::Caption);
    text(QRectF(lane.area.left(), lane.area.top() - em(1.15), titleWidth, g.unit), title,
         Qt::AlignLeft | Qt::AlignVCenter, TextRole::Caption);
    return lane.area.left() + titleWidth + em(1.2);
}

double ProgressLayout::sampleWidth(LegendKind kind) const
{
    switch (kind) {
    case LegendKind::Trend:
        return em(2.4);
    case LegendKind::Line:
    case LegendKind::FilledIn:
    case LegendKind::BeyondScale:
    case LegendKind::Average:
    case LegendKind::Target:
        return em(1.7);
    default:
        return em(0.8);
    }
}

double ProgressLayout::sampleEnd(double x, LegendKind kind, const QString &name) const
{
    return x + sampleWidth(kind) + em(0.35) + width(name);
}

/// A sample with its name; left out, together with those after it, where there is no room.
double ProgressLayout::placeSample(const ProgressLane &lane, double x, LegendKind kind,
                                   const QString &name, Series series)
{
    const double nameWidth = width(name);
    const double end = sampleEnd(x, kind, name);
    if (end > g.area.right() - em(margin))
        return g.area.right();
    const double top = lane.area.top() - em(1.15);
    g.legend.push_back({kind, series, QRectF(x, top + em(0.1), sampleWidth(kind), em(0.8))});
    text(QRectF(end - nameWidth, top, nameWidth, g.unit), name, Qt::AlignLeft | Qt::AlignVCenter);
    return end + em(samplesApart);
}

void ProgressLayout::placeTitles()
{
    placeWeightTitle();
    placeGirthsTitle();
    placeBalanceTitle();
}

void ProgressLayout::placeWeightTitle()
{
    double x = placeTitle(g.weight, m_texts.nameWithUnit(Series::Weight));
    const auto has = [this](auto... kinds) {
        return std::any_of(g.lines.begin(), g.lines.end(), [&](const SeriesLine &line) {
            return std::any_of(line.marks.begin(), line.marks.end(),
                               [&](const Mark &mark) { return ((mark.kind == kinds) || ...); });
        });
    };
    if (has(Mark::Kind::Measured))
        x = placeSample(g.weight, x, LegendKind::Measured, ProgressTexts::tr("measured"));
    if (has(Mark::Kind::FilledIn))
        x = placeSample(g.weight, x, LegendKind::FilledIn, ProgressTexts::tr("filled in"));
    if (hasTarget(g.weight))
        x = placeSample(g.weight, x, LegendKind::Target, ProgressTexts::tr("target"));
    const bool goesBeyond = has(Mark::Kind::AboveScale, Mark::Kind::BelowScale);
    const QString beyond = ProgressTexts::tr("filled in, off the scale");
    if (!g.trend.empty())
        x = placeTrendSample(x, goesBeyond ? sampleEnd(0, LegendKind::BeyondScale, beyond) : 0);
    if (goesBeyond)
        placeSample(g.weight, x, LegendKind::BeyondScale, beyond);
}

/// Tells as much of the slope as there is room for beside the sample after it.
double ProgressLayout::placeTrendSample(double x, double next)
{
    const QStringList names = m_texts.trendNames(m_summary);
    const double room = g.area.right() - em(margin) - (next > 0 ? next + em(samplesApart) : 0);
    const auto fits = std::find_if(names.begin(), names.end() - 1, [&](const QString &name) {
        return sampleEnd(x, LegendKind::Trend, name) <= room;
    });
    return placeSample(g.weight, x, LegendKind::Trend, *fits);
}

void ProgressLayout::placeGirthsTitle()
{
    double x = placeTitle(g.girths, m_texts.girthsTitle());
    for (const Series series : {Series::Breast, Series::Waist, Series::Hips}) {
        if (m_series.hasBody())
            x = placeSample(g.girths, x, LegendKind::Line, m_texts.name(series), series);
    }
    if (hasTarget(g.girths))
        placeSample(g.girths, x, LegendKind::Target, ProgressTexts::tr("target"));
}

void ProgressLayout::placeBalanceTitle()
{
    double x = placeTitle(g.balance, m_texts.balanceTitle());
    x = placeSample(g.balance, x, LegendKind::Surplus, ProgressTexts::tr("surplus"));
    x = placeSample(g.balance, x, LegendKind::Deficit, ProgressTexts::tr("deficit"));
    if (g.hasAverage)
        x = placeSample(g.balance, x, LegendKind::Average, ProgressTexts::tr("average"));
    if (!g.notRecorded.empty())
        placeSample(g.balance, x, LegendKind::NotRecorded, ProgressTexts::tr("not recorded"));
}

} // namespace progress
