// What stands in the lanes of the progress chart, and their titles.
#include "progress/progresslayout.h"
#include "progress/progresslines.h"

#include <algorithm>
#include <cmath>

namespace progress {

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

/// What a line is stands right of the plot, at the height of its last value. Labels that would
/// touch are moved apart; one for which the lane is too low is left out.
void ProgressLayout::placeLineLabels(const ProgressLane &lane)
{
    std::vector<SeriesLine *> lines;
    for (SeriesLine &line : g.lines) {
        if (&g.laneOf(line.series) == &lane && !line.marks.empty())
            lines.push_back(&line);
    }
    std::sort(lines.begin(), lines.end(), [](const SeriesLine *a, const SeriesLine *b) {
        return a->marks.back().at.y() < b->marks.back().at.y();
    });
    double lowest = lane.area.bottom() + g.unit / 2; // the next lane's title is further down
    lines.resize(std::min(lines.size(), size_t((lowest - lane.area.top()) / g.unit)));
    for (auto line = lines.rbegin(); line != lines.rend(); ++line) {
        const double bottom = std::min((*line)->marks.back().at.y() + g.unit / 2, lowest);
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
    if (!m_summary.averageBalance)
        return;
    g.hasAverage = true;
    g.averageY = g.balance.scale.y(*m_summary.averageBalance);
    const double top = std::min(g.averageY - g.unit / 2, g.balance.area.bottom() - g.unit);
    text(besidePlot(std::max(top, g.balance.area.top())),
         m_texts.change(std::round(*m_summary.averageBalance)), Qt::AlignLeft | Qt::AlignVCenter);
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

/// A sample with its name; left out, together with those after it, where there is no room.
double ProgressLayout::placeSample(const ProgressLane &lane, double x, LegendKind kind,
                                   const QString &name, Series series)
{
    const bool isLine = kind == LegendKind::Line || kind == LegendKind::FilledIn ||
                        kind == LegendKind::BeyondScale || kind == LegendKind::Average;
    const double sampleWidth = isLine ? em(1.7) : em(0.8);
    const double nameWidth = width(name);
    const double end = x + sampleWidth + em(0.35) + nameWidth;
    if (end > g.area.right() - em(margin))
        return g.area.right();
    const double top = lane.area.top() - em(1.15);
    g.legend.push_back({kind, series, QRectF(x, top + em(0.1), sampleWidth, em(0.8))});
    text(QRectF(end - nameWidth, top, nameWidth, g.unit), name, Qt::AlignLeft | Qt::AlignVCenter);
    return end + em(1.1);
}

void ProgressLayout::placeTitles()
{
    double x = placeTitle(g.weight, m_texts.nameWithUnit(Series::Weight));
    const auto has = [this](auto... kinds) {
        return std::any_of(g.lines.begin(), g.lines.end(), [&](const SeriesLine &line) {
            return std::any_of(line.marks.begin(), line.marks.end(),
                               [&](const Mark &mark) { return ((mark.kind == kinds) || ...); });
        });
    };
    const bool within = has(Mark::Kind::FilledIn);
    const bool beyond = has(Mark::Kind::AboveScale, Mark::Kind::BelowScale);
    if (has(Mark::Kind::Measured))
        x = placeSample(g.weight, x, LegendKind::Measured, ProgressTexts::tr("measured"));
    if (within)
        x = placeSample(g.weight, x, LegendKind::FilledIn, ProgressTexts::tr("filled in"));
    if (beyond)
        placeSample(g.weight, x, LegendKind::BeyondScale,
                    ProgressTexts::tr("filled in, off the scale"));

    x = placeTitle(g.girths, m_texts.girthsTitle());
    for (const Series series : {Series::Breast, Series::Waist, Series::Hips}) {
        if (m_series.hasBody())
            x = placeSample(g.girths, x, LegendKind::Line, m_texts.name(series), series);
    }

    x = placeTitle(g.balance, m_texts.balanceTitle());
    x = placeSample(g.balance, x, LegendKind::Surplus, ProgressTexts::tr("surplus"));
    x = placeSample(g.balance, x, LegendKind::Deficit, ProgressTexts::tr("deficit"));
    if (g.hasAverage)
        x = placeSample(g.balance, x, LegendKind::Average, ProgressTexts::tr("average"));
    if (!g.notRecorded.empty())
        placeSample(g.balance, x, LegendKind::NotRecorded, ProgressTexts::tr("not recorded"));
}

} // namespace progress
