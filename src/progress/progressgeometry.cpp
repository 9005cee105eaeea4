#include "progress/progressgeometry.h"

#include "progress/progresslines.h"
#include "progress/timemarks.h"

#include <algorithm>
#include <cmath>

namespace progress {

namespace {

constexpr double margin = 0.6;
constexpr double headerHeight = 1.35;
constexpr double laneGap = 0.45;
constexpr double footHeight = 2.5;
constexpr double ticksApart = 1.25;
constexpr int scaleSteps = 6;
constexpr double noteRowHeight = 1.2;
constexpr double leastBodyStep = 0.1;
constexpr double leastBalanceStep = 1;

/// Builds the geometry step by step: the heights first, which fix the scales and with them the
/// widths of what stands beside the plot, then everything between.
class Layout
{
public:
    Layout(const DaySeries &series, const QRectF &area, const TextMetrics &metrics,
           const ProgressTexts &texts)
        : m_series(series)
        , m_metrics(metrics)
        , m_texts(texts)
        , m_summary(summaryOf(series))
    {
        g.area = area;
        g.unit = metrics.lineHeight;
        g.isEmpty = series.isEmpty();
    }

    ChartGeometry build()
    {
        placeFigures();
        layRows();
        layColumns();
        placeDates();
        if (g.isEmpty) {
            sayAcross(g.plot, ProgressTexts::tr("There are no measurements, meals, activities or "
                                                "notes in this period."));
            return std::move(g);
        }
        placeNotes();
        placeLines();
        placeBalance();
        placeTicks();
        placeTitles();
        return std::move(g);
    }

private:
    double em(double count) const { return count * g.unit; }
    double width(const QString &text, TextRole role = TextRole::Plain) const
    {
        return m_metrics.width(text, role);
    }
    void text(const QRectF &rect, const QString &words, Qt::Alignment alignment,
              TextRole role = TextRole::Plain, Tone tone = Tone::Ink)
    {
        g.texts.push_back({rect, words, alignment, role, tone});
    }
    void sayAcross(const QRectF &rect, const QString &words)
    {
        text(rect, words, Qt::AlignCenter, TextRole::Plain, Tone::Muted);
    }

    void placeFigures();
    double figuresWidth(const std::vector<Figure> &figures, TextRole role) const;
    void layRows();
    void layColumns();
    void placeDates();
    void placeDayNumber(qint16 day, double labelWidth);
    void placeMonth(const MonthPart &part);
    void placeNotes();
    void placeLines();
    void placeLineLabels(const Lane &lane);
    /// A line of text in the margin that the plot leaves at its right.
    QRectF besidePlot(double top) const
    {
        const double left = g.days.right() + em(0.5);
        return {left, top, g.area.right() - left, g.unit};
    }
    void placeBalance();
    void placeTicks();
    void placeTitles();
    double placeTitle(const Lane &lane, const QString &title);
    double placeSample(const Lane &lane, double x, LegendKind kind, const QString &name,
                       Series series = Series::Weight);
    QString lineLabel(Series series) const;

    ChartGeometry g;
    const DaySeries &m_series;
    const TextMetrics &m_metrics;
    const ProgressTexts &m_texts;
    Summary m_summary;
    double m_top = 0; ///< below the line of figures
    QRectF m_strip;   ///< of the notes
    int m_noteRows = 1;
    double m_footTop = 0;
};

double Layout::figuresWidth(const std::vector<Figure> &figures, TextRole role) const
{
    double sum = 0;
    for (const Figure &figure : figures)
        sum += std::max(width(figure.name), width(figure.value, role)) + em(1.2);
    return sum - em(1.2);
}

/// The line of figures, each below its name; in a narrow area it takes several lines.
void Layout::placeFigures()
{
    const std::vector<Figure> figures = m_texts.figures(m_summary);
    const double left = g.area.left() + em(margin);
    const double right = g.area.right() - em(margin);
    const bool large = figuresWidth(figures, TextRole::Figure) <= right - left;
    const TextRole role = large ? TextRole::Figure : TextRole::Caption;
    const double valueHeight = large ? m_metrics.figureHeight : g.unit;
    const double gap = std::clamp(
        (right - left - figuresWidth(figures, role)) / double(figures.size() - 1) + em(1.2),
        em(0.8), em(2.6));
    double x = left;
    double y = g.area.top() + em(0.4);
    for (const Figure &figure : figures) {
        const double block = std::max(width(figure.name), width(figure.value, role));
        if (x > left && x + block > right) {
            x = left;
            y += g.unit + valueHeight + em(0.2);
        }
        text(QRectF(x, y, block, g.unit), figure.name, Qt::AlignLeft | Qt::AlignVCenter,
             TextRole::Plain, Tone::Muted);
        text(QRectF(x, y + g.unit, block, valueHeight), figure.value,
             Qt::AlignLeft | Qt::AlignVCenter, role);
        x += block + gap;
    }
    m_top = y + g.unit + valueHeight + em(0.5);
}

void Layout::layRows()
{
    // Many notes take turns in two rows, so that their letters have room.
    const double letters = width(QStringLiteral("W")) * double(m_series.notes.size());
    m_noteRows = letters > 0.6 * g.area.width() ? 2 : 1;
    const double stripHeight = m_series.notes.empty() ? 0 : m_noteRows * em(noteRowHeight);
    m_strip = QRectF(0, m_top, 0, stripHeight);
    m_footTop = std::max(m_top + stripHeight + 3, g.area.bottom() - em(footHeight));
    g.lanesTop = m_strip.bottom() + (stripHeight > 0 ? em(0.2) : 0);
    const double spent = 3 * em(headerHeight) + 2 * em(laneGap);
    const double left = std::max(3.0, m_footTop - g.lanesTop - spent);
    double y = g.lanesTop;
    const auto lay = [&](Lane &lane, double share) {
        lane.area = QRectF(0, y + em(headerHeight), 0, share * left);
        y = lane.area.bottom() + em(laneGap);
    };
    lay(g.weight, 0.27);
    lay(g.girths, 0.37);
    lay(g.balance, 0.36);
    // Above the highest value there is room for the marks of values beyond the scale.
    const auto scale = [](Lane &lane, const Range &range, double leastStep, double room) {
        if (!range.isEmpty())
            lane.scale = scaleOf(range, scaleSteps, leastStep,
                                 lane.area.top() + std::min(room, lane.area.height() / 4),
                                 lane.area.bottom());
    };
    scale(g.weight, m_series.weights, leastBodyStep, em(0.6));
    scale(g.girths, m_series.girths, leastBodyStep, em(0.6));
    scale(g.balance, m_series.calories, leastBalanceStep, 0);
}

QString Layout::lineLabel(Series series) const
{
    for (qint16 day = m_series.nDays(); day >= 1; --day) {
        const Day &record = m_series.at(day);
        if (!record.isKnown(series))
            continue;
        const QString value = m_texts.number(double(record.value(series)));
        return series == Series::Weight ? value
                                        : QStringLiteral("%1 %2").arg(m_texts.name(series), value);
    }
    return {};
}

/// The widths of what stands left and right of the plot, and the plot between.
void Layout::layColumns()
{
    double leftLabels = m_series.notes.empty() ? 0 : width(ProgressTexts::tr("Notes"));
    for (const Lane *lane : {&g.weight, &g.girths, &g.balance}) {
        for (const double value : lane->scale.ticks(em(ticksApart)))
            leftLabels = std::max(leftLabels, width(m_texts.tick(value, lane->scale.step)));
    }
    double rightLabels = 0;
    for (const Series series : allSeries)
        rightLabels = std::max(rightLabels, width(lineLabel(series)));
    if (m_summary.averageBalance)
        rightLabels =
            std::max(rightLabels, width(m_texts.change(std::round(*m_summary.averageBalance))));

    const double left = std::round(g.area.left() + em(margin) + leftLabels + em(0.4));
    const double right = std::round(g.area.right() - em(margin) - rightLabels - em(0.5));
    g.days.days = m_series.nDays();
    g.days.left = left;
    g.days.dayWidth = std::max(1.0, right - left) / g.days.days;
    for (QRectF *rect : {&m_strip, &g.weight.area, &g.girths.area, &g.balance.area}) {
        rect->setLeft(left);
        rect->setRight(g.days.right());
    }
    g.plot = QRectF(QPointF(left, m_top), QPointF(g.days.right(), m_footTop));
}

void Layout::placeMonth(const MonthPart &part)
{
    const double left = g.days.x(part.firstDay);
    const QRectF rect(left, m_footTop + em(1.2), g.days.x(part.lastDay) + g.days.dayWidth - left,
                      g.unit);
    const QString name = m_texts.locale().standaloneMonthName(part.month.month());
    const QString abbreviated =
        m_texts.locale().standaloneMonthName(part.month.month(), QLocale::ShortFormat);
    const QString year = QString::number(part.month.year());
    for (const QString &words : {QStringLiteral("%1 %2").arg(name, year),
                                 QStringLiteral("%1 %2").arg(abbreviated, year), abbreviated}) {
        if (width(words) + em(0.4) <= rect.width()) {
            text(rect, words, Qt::AlignCenter);
            return;
        }
    }
}

void Layout::placeDates()
{
    for (const MonthPart &part : monthsOf(m_series.period())) {
        if (part.firstDay > 1)
            g.monthLines.push_back(g.days.x(part.firstDay));
        placeMonth(part);
    }
    const std::vector<qint16> weeks = weekStarts(m_series.period(), m_texts.locale());
    for (const qint16 day : weeks)
        g.weekLines.push_back(g.days.x(day));
    const double labelWidth = width(QStringLiteral("00")) + em(0.5);
    if (g.days.dayWidth >= labelWidth) {
        for (qint16 day = 1; day <= g.days.days; ++day)
            placeDayNumber(day, labelWidth);
        return;
    }
    // The first label may stand half its width to the right of its day.
    const auto every = size_t(std::ceil(1.5 * labelWidth / (7 * g.days.dayWidth)));
    for (size_t i = 0; i < weeks.size(); i += every)
        placeDayNumber(weeks[i], labelWidth);
}

/// Below its day, but not below the labels of the scales.
void Layout::placeDayNumber(qint16 day, double labelWidth)
{
    const double left = std::max(g.days.center(day) - labelWidth / 2, g.days.left - em(0.3));
    text(QRectF(left, m_footTop + em(0.2), labelWidth, g.unit),
         m_texts.locale().toString(m_series.date(day).day()), Qt::AlignCenter, TextRole::Plain,
         Tone::Muted);
}

void Layout::placeNotes()
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

void Layout::placeLines()
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
void Layout::placeLineLabels(const Lane &lane)
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

void Layout::placeBalance()
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

void Layout::placeTicks()
{
    for (Lane *lane : {&g.weight, &g.girths, &g.balance}) {
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

double Layout::placeTitle(const Lane &lane, const QString &title)
{
    const double titleWidth = width(title, TextRole::Caption);
    text(QRectF(lane.area.left(), lane.area.top() - em(1.15), titleWidth, g.unit), title,
         Qt::AlignLeft | Qt::AlignVCenter, TextRole::Caption);
    return lane.area.left() + titleWidth + em(1.2);
}

/// A sample with its name; left out, together with those after it, where there is no room.
double Layout::placeSample(const Lane &lane, double x, LegendKind kind, const QString &name,
                           Series series)
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

void Layout::placeTitles()
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

} // namespace

qint16 DayScale::dayAt(double x) const
{
    return qint16(std::clamp(std::floor((x - left) / dayWidth) + 1, 1.0, double(days)));
}

std::optional<size_t> ChartGeometry::noteAt(QPointF place) const
{
    // From the last: where two bars touch, the later one is painted on top.
    for (size_t i = notes.size(); i > 0; --i) {
        if (notes[i - 1].bar.contains(place))
            return i - 1;
    }
    return std::nullopt;
}

ChartGeometry progressGeometry(const DaySeries &series, const QRectF &area,
                               const TextMetrics &metrics, const ProgressTexts &texts)
{
    return Layout(series, area, metrics, texts).build();
}

} // namespace progress
