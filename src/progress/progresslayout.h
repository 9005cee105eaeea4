// How the geometry of the progress chart is built.
#pragma once

#include "progress/progressgeometry.h"
#include "progress/progresstexts.h"
#include "progress/timemarks.h"

namespace progress {

/// Lays a period out in an area; what finds no room in a small one is left out. Throws
/// OverflowError where the values are beyond what a scale can hold.
ProgressGeometry progressGeometry(const DaySeries &series, const QRectF &area,
                                  const TextMetrics &metrics, const ProgressTexts &texts);

// In heights of a line of text.
inline constexpr double margin = 0.6;
inline constexpr double ticksApart = 1.25;

/// Builds the geometry step by step: the heights first, which fix the scales and with them the
/// widths of what stands beside the plot, then everything between.
class ProgressLayout
{
public:
    ProgressLayout(const DaySeries &series, const QRectF &area, const TextMetrics &metrics,
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

    ProgressGeometry build()
    {
        placeFigures();
        placeTargetWords();
        layRows();
        layColumns();
        layBalanceValues();
        placeDates();
        if (g.isEmpty) {
            sayAcross(g.plot, m_texts.emptyWords());
            return std::move(g);
        }
        placeNotes();
        placeLines();
        placeTrend();
        placeTargets();
        placeBalance();
        placeTicks();
        placeTitles();
        return std::move(g);
    }

private:
    double em(double count) const { return count * g.unit; }
    double width(const QString &text, TextRole role = TextRole::Plain) const
    {
        return m_metrics.width(ProgressTexts::withMinus(text), role);
    }
    void text(const QRectF &rect, const QString &words, Qt::Alignment alignment,
              TextRole role = TextRole::Plain, Tone tone = Tone::Ink)
    {
        g.texts.push_back({rect, ProgressTexts::withMinus(words), alignment, role, tone});
    }
    void sayAcross(const QRectF &rect, const QString &words)
    {
        text(rect, words, Qt::AlignCenter, TextRole::Plain, Tone::Muted);
    }

    /// How large the figures' values are, and which words for trends stand below them, if any.
    struct FigureLook
    {
        TextRole role = TextRole::Caption;
        std::optional<TrendForm> trend;
    };
    void placeFigures();
    FigureLook figureLook(const std::vector<Figure> &figures, double room) const;
    double figureWidth(const Figure &figure, const FigureLook &look) const;
    double figuresWidth(const std::vector<Figure> &figures, const FigureLook &look) const;
    void layRows();
    void layBodyScales();
    void widenByTarget(Range &range, Series series) const;
    void layBalanceScale(double valueHeight);
    void layBalanceValues();
    QString balanceValue(qint16 day) const
    {
        return m_texts.plain().toText(int(m_series.at(day).calories));
    }
    void layColumns();
    void placeDates();
    void placeDayNumber(qint16 day, double labelWidth);
    void placeMonth(const MonthPart &part);
    void placeNotes();
    void placeLines();
    void placeLineLabels(const ProgressLane &lane);
    /// A line of text in the margin that the plot leaves at its right.
    QRectF besidePlot(double top) const
    {
        const double left = g.days.right() + em(0.5);
        return {left, top, g.area.right() - left, g.unit};
    }
    void placeTrend();
    void placeTargetWords();
    void placeTargets();
    bool hasTarget(const ProgressLane &lane) const;
    void placeBalance();
    void placeBalanceValues();
    bool hasRoomForValue(const BalanceColumn &column, const QRectF &rect) const;
    void placeAverageLine();
    void placeTicks();
    void placeTitles();
    void placeWeightTitle();
    double placeTrendSample(double x, double next);
    void placeGirthsTitle();
    void placeBalanceTitle();
    double placeTitle(const ProgressLane &lane, const QString &title);
    double sampleWidth(LegendKind kind) const;
    double sampleEnd(double x, LegendKind kind, const QString &name) const;
    double placeSample(const ProgressLane &lane, double x, LegendKind kind, const QString &name,
                       Series series = Series::Weight);
    QString lineLabel(Series series) const;

    ProgressGeometry g;
    const DaySeries &m_series;
    const TextMetrics &m_metrics;
    const ProgressTexts &m_texts;
    Summary m_summary;
    std::vector<std::optional<double>> m_averages; ///< of the weight, a day each
    double m_top = 0;                              ///< below the line of figures
    QRectF m_strip;                                ///< of the notes
    int m_noteRows = 1;
    bool m_hasBalanceValues = false;
    double m_footTop = 0;
};

} // namespace progress
