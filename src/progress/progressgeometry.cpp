#include "progress/progresslayout.h"
#include "progress/targets.h"

#include <algorithm>
#include <cmath>

namespace progress {

namespace {

constexpr double headerHeight = 1.35;
constexpr double laneGap = 0.45;
constexpr double footHeight = 2.5;
constexpr int bodySteps = 6;
constexpr int balanceSteps = 9; // 500 kcal each where the lane is high enough
constexpr double noteRowHeight = 1.2;
constexpr double leastBodyStep = 0.1;
constexpr double leastBalanceStep = 1;
constexpr double leastLaneOfValues = 6;
constexpr double leastHeightOfLines = 36; // of an area with two lines for each trend
constexpr double leastHeightOfLanes = 18; // with what stands around them
constexpr double mostDaysOfValue = 1.35;  // that the widest one takes

} // namespace

double ProgressLayout::figureWidth(const Figure &figure, const FigureLook &look) const
{
    double widest = std::max(width(figure.name), width(figure.value, look.role));
    for (const QString &line : look.trend ? figure.trendIn(*look.trend) : QStringList())
        widest = std::max(widest, width(line));
    return widest;
}

double ProgressLayout::figuresWidth(const std::vector<Figure> &figures,
                                    const FigureLook &look) const
{
    double sum = 0;
    for (const Figure &figure : figures)
        sum += figureWidth(figure, look) + em(1.2);
    return sum - em(1.2);
}

/// The first one with which the figures stand on one line; without trends they may take several.
ProgressLayout::FigureLook ProgressLayout::figureLook(const std::vector<Figure> &figures,
                                                      double room) const
{
    const bool isHigh = g.area.height() >= em(leastHeightOfLines);
    for (const FigureLook &look : {FigureLook{TextRole::Figure, TrendForm::OneLine},
                                   {TextRole::Caption, TrendForm::OneLine},
                                   {TextRole::Figure, TrendForm::TwoLines},
                                   {TextRole::Caption, TrendForm::TwoLines},
                                   {TextRole::Figure, TrendForm::SlopeAlone},
                                   {TextRole::Caption, TrendForm::SlopeAlone}}) {
        if ((look.trend != TrendForm::TwoLines || isHigh) && figuresWidth(figures, look) <= room)
            return look;
    }
    return {};
}

/// The line of figures, each below its name; in a narrow area it takes several lines.
void ProgressLayout::placeFigures()
{
    const std::vector<Figure> figures = m_texts.figures(m_summary);
    const double left = g.area.left() + em(margin);
    const double right = g.area.right() - em(margin);
    const FigureLook look = figureLook(figures, right - left);
    const double valueHeight = look.role == TextRole::Figure ? m_metrics.figureHeight : g.unit;
    double height = 0;
    for (const Figure &figure : figures) {
        const auto lines = look.trend ? figure.trendIn(*look.trend).size() : 0;
        height = std::max(height, g.unit + valueHeight + double(lines) * g.unit);
    }
    const double gap = std::clamp(
        (right - left - figuresWidth(figures, look)) / double(figures.size() - 1) + em(1.2),
        em(0.8), em(2.6));
    double x = left;
    double y = g.area.top() + em(0.4);
    for (const Figure &figure : figures) {
        const double block = figureWidth(figure, look);
        if (x > left && x + block > right) {
            x = left;
            y += height + em(0.2);
        }
        text(QRectF(x, y, block, g.unit), figure.name, Qt::AlignLeft | Qt::AlignVCenter,
             TextRole::Plain, Tone::Muted);
        text(QRectF(x, y + g.unit, block, valueHeight), figure.value,
             Qt::AlignLeft | Qt::AlignVCenter, look.role);
        QRectF line(x, y + g.unit + valueHeight, block, g.unit);
        for (const QString &words : look.trend ? figure.trendIn(*look.trend) : QStringList()) {
            text(line, words, Qt::AlignLeft | Qt::AlignVCenter);
            line.translate(0, g.unit);
        }
        x += block + gap;
    }
    m_top = y + height + em(0.5);
}

/// What is said of the goals, below the figures, in as many lines as leave the lanes their height.
void ProgressLayout::placeTargetWords()
{
    const double left = g.area.left() + em(margin);
    const double right = g.area.right() - em(margin);
    double x = right;
    double y = m_top - em(1.1);
    for (const QString &sentence : targetWords(m_summary, m_series.targets, m_texts)) {
        const double wide = std::min(width(sentence), right - left);
        if (x + wide > right) {
            x = left;
            y += em(1.1);
            if (g.area.bottom() - (y + em(1.4)) < em(leastHeightOfLanes))
                return;
            m_top = y + em(1.4);
        }
        text(QRectF(x, y, wide, g.unit), sentence, Qt::AlignLeft | Qt::AlignVCenter);
        x += wide + em(1.5);
    }
}

void ProgressLayout::layRows()
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
    const auto lay = [&](ProgressLane &lane, double share) {
        lane.area = QRectF(0, y + em(headerHeight), 0, share * left);
        y = lane.area.bottom() + em(laneGap);
    };
    lay(g.weight, 0.28);
    lay(g.girths, 0.32);
    lay(g.balance, 0.40);
    layBodyScales();
    layBalanceScale(0);
}

/// A goal is on the scale, too, unless that would make the measured values much smaller.
void ProgressLayout::widenByTarget(Range &range, Series series) const
{
    const std::optional<double> target = m_series.targets.of(series);
    if (!target || range.isEmpty())
        return;
    constexpr float leastSpan = 2;
    const float span = std::max(range.maximum - range.minimum, leastSpan);
    const auto value = float(*target);
    if (value > range.minimum - 2 * span && value < range.maximum + 2 * span)
        range.widen(value);
}

/// Above the highest value there is room for the marks of values beyond the scale.
void ProgressLayout::layBodyScales()
{
    const auto scale = [this](ProgressLane &lane, const Range &range) {
        if (!range.isEmpty())
            lane.scale = scaleOf(range, bodySteps, leastBodyStep,
                                 lane.area.top() + std::min(em(0.6), lane.area.height() / 4),
                                 lane.area.bottom());
    };
    Range weights = m_series.weights;
    for (qint16 day = 1; m_series.hasBody() && day <= m_series.nDays(); ++day) {
        m_averages.push_back(averageAt(m_series.measured(Series::Weight), m_series.date(day)));
        if (m_averages.back()) // the days before the period may have been higher or lower
            weights.widen(float(*m_averages.back()));
    }
    Range girths = m_series.girths;
    widenByTarget(weights, Series::Weight);
    for (const Series series : {Series::Breast, Series::Waist, Series::Hips})
        widenByTarget(girths, series);
    scale(g.weight, weights);
    scale(g.girths, girths);
}

void ProgressLayout::layBalanceScale(double valueHeight)
{
    const QRectF &area = g.balance.area;
    g.balance.scale = scaleOf(m_series.calories, balanceSteps, leastBalanceStep,
                              area.top() + valueHeight, area.bottom() - valueHeight);
}

/// Above and below the balance there is room for the values at the ends of its columns, unless they
/// are so wide that few of them would find any.
void ProgressLayout::layBalanceValues()
{
    double widest = 0;
    for (qint16 day = 1; day <= m_series.nDays(); ++day) {
        if (m_series.at(day).hasCalories)
            widest = std::max(widest, width(balanceValue(day)));
    }
    m_hasBalanceValues = widest > 0 && widest <= mostDaysOfValue * g.days.dayWidth &&
                         g.balance.area.height() >= em(leastLaneOfValues);
    if (!m_hasBalanceValues)
        return;
    layBalanceScale(g.unit);
    layColumns(); // whose labels may be fewer now, and narrower
}

QString ProgressLayout::lineLabel(Series series) const
{
    for (qint16 day = m_series.nDays(); day >= 1; --day) {
        const Day &record = m_series.at(day);
        if (record.source != BodySource::Measured || !record.isKnown(series))
            continue;
        const QString value = m_texts.number(double(record.value(series)));
        return series == Series::Weight ? value
                                        : QStringLiteral("%1 %2").arg(m_texts.name(series), value);
    }
    return {};
}

/// The widths of what stands left and right of the plot, and the plot between.
void ProgressLayout::layColumns()
{
    double leftLabels = m_series.notes.empty() ? 0 : width(ProgressTexts::tr("Notes"));
    for (const ProgressLane *lane : {&g.weight, &g.girths, &g.balance}) {
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

void ProgressLayout::placeMonth(const MonthPart &part)
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

void ProgressLayout::placeDates()
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
void ProgressLayout::placeDayNumber(qint16 day, double labelWidth)
{
    const double left = std::max(g.days.center(day) - labelWidth / 2, g.days.left - em(0.3));
    text(QRectF(left, m_footTop + em(0.2), labelWidth, g.unit),
         m_texts.locale().toString(m_series.date(day).day()), Qt::AlignCenter, TextRole::Plain,
         Tone::Muted);
}

qint16 DayScale::dayAt(double x) const
{
    return qint16(std::clamp(std::floor((x - left) / dayWidth) + 1, 1.0, double(days)));
}

std::optional<size_t> ProgressGeometry::noteAt(QPointF place) const
{
    // From the last: where two bars touch, the later one is painted on top.
    for (size_t i = notes.size(); i > 0; --i) {
        if (notes[i - 1].bar.contains(place))
            return i - 1;
    }
    return std::nullopt;
}

ProgressGeometry progressGeometry(const DaySeries &series, const QRectF &area,
                                  const TextMetrics &metrics, const ProgressTexts &texts)
{
    return ProgressLayout(series, area, metrics, texts).build();
}

} // namespace progress
