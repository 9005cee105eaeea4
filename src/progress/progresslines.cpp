#include "progress/progresslines.h"

#include "progress/progresstexts.h"

#include <algorithm>
#include <cmath>

namespace progress {

namespace {

Mark markOf(const Day &day, qint16 number, Series series, const ProgressLane &lane,
            const DayScale &scale)
{
    const auto value = double(day.value(series));
    const QPointF at(scale.center(number), lane.scale.y(value));
    if (day.source == BodySource::Measured)
        return {number, Mark::Kind::Measured, at};
    if (value > lane.scale.high)
        return {number, Mark::Kind::AboveScale, QPointF(at.x(), lane.area.top())};
    if (value < lane.scale.low)
        return {number, Mark::Kind::BelowScale, QPointF(at.x(), lane.area.bottom())};
    return {number, Mark::Kind::FilledIn, at};
}

bool allFilledIn(const DaySeries &days, qint16 after, qint16 before)
{
    for (auto day = qint16(after + 1); day < before; ++day) {
        if (days.at(day).source != BodySource::FilledIn)
            return false;
    }
    return true;
}

} // namespace

SeriesLine seriesLine(const DaySeries &days, Series series, const ProgressLane &lane,
                      const DayScale &scale)
{
    SeriesLine line = {series, {}, {}, {}, {}};
    const Mark *before = nullptr; // the measured day before
    line.marks.reserve(size_t(days.nDays()));
    for (qint16 day = 1; day <= days.nDays(); ++day) {
        if (!days.at(day).isKnown(series))
            continue;
        const Mark &mark = line.marks.emplace_back(markOf(days.at(day), day, series, lane, scale));
        if (mark.kind != Mark::Kind::Measured)
            continue;
        if (before && day == before->day + 1)
            line.measured.emplace_back(before->at, mark.at);
        else if (before && allFilledIn(days, before->day, day))
            line.bridges.emplace_back(before->at, mark.at);
        before = &mark;
    }
    return line;
}

std::vector<TrendLine> trendLines(const std::vector<std::optional<double>> &averages,
                                  const ProgressLane &lane, const DayScale &scale, double longest)
{
    std::vector<TrendLine> lines;
    for (size_t i = 0; i < averages.size(); ++i) {
        if (!averages[i])
            continue;
        if (i == 0 || !averages[i - 1])
            lines.emplace_back();
        lines.back().emplace_back(scale.center(qint16(i + 1)), lane.scale.y(*averages[i]));
    }
    const QPointF half(std::min(longest, scale.dayWidth) / 2, 0);
    for (TrendLine &line : lines) {
        if (line.size() == 1)
            line = {line.front() - half, line.front() + half};
    }
    return lines;
}

std::vector<BalanceColumn> balanceColumns(const DaySeries &days, const ProgressLane &lane,
                                          const DayScale &scale, double widest)
{
    std::vector<BalanceColumn> columns;
    const double width = std::min(0.76 * scale.dayWidth, widest);
    const double zero = lane.scale.y(0);
    for (qint16 day = 1; day <= days.nDays(); ++day) {
        const Day &record = days.at(day);
        if (!record.hasCalories)
            continue;
        const double end = lane.scale.y(record.calories);
        columns.push_back({day,
                           QRectF(scale.center(day) - width / 2, std::min(zero, end), width,
                                  std::abs(zero - end)),
                           record.calories > 0,
                           {}});
    }
    return columns;
}

std::vector<QRectF> notRecordedStrips(const DaySeries &days, const ProgressLane &lane,
                                      const DayScale &scale, double height)
{
    std::vector<QRectF> strips;
    const double top = lane.scale.y(0) - height / 2;
    for (qint16 day = 1; day <= days.nDays(); ++day) {
        if (days.at(day).hasCalories)
            continue;
        const bool goesOn = day > 1 && !days.at(qint16(day - 1)).hasCalories;
        if (goesOn)
            strips.back().setRight(scale.x(day) + scale.dayWidth);
        else
            strips.emplace_back(scale.x(day), top, scale.dayWidth, height);
    }
    return strips;
}

std::vector<NoteSpan> noteSpans(const DaySeries &days, const NoteStrip &strip, const QRectF &plot,
                                const DayScale &scale)
{
    std::vector<NoteSpan> spans;
    std::vector<double> letterEnds(size_t(strip.rows), strip.area.left());
    const double height = strip.area.height() / strip.rows;
    for (size_t i = 0; i < days.notes.size(); ++i) {
        const Note &note = days.notes[i];
        const qint16 first = days.dayOf(qMax(note.DateFrom, days.period().dateFrom));
        const qint16 last = qMax(first, days.dayOf(qMin(note.DateTo, days.period().dateTo)));
        const QRectF reach(scale.x(first), plot.top(),
                           scale.x(last) + scale.dayWidth - scale.x(first), plot.height());
        const size_t row = i % letterEnds.size();
        QRectF bar(reach.left(), strip.area.top() + double(row) * height,
                   std::max(reach.width(), strip.leastWidth), height);
        bar.moveLeft(std::min(bar.left(), strip.area.right() - bar.width()));
        const QString letter = noteLetter(i);
        const double letterWidth = strip.letterWidth(letter);
        const double letterLeft = bar.center().x() - letterWidth / 2;
        const bool hasRoom = letterLeft >= letterEnds[row] - letterWidth / 4;
        if (hasRoom)
            letterEnds[row] = letterLeft + letterWidth;
        spans.push_back({first, last, bar, reach, letter, hasRoom});
    }
    return spans;
}

} // namespace progress
