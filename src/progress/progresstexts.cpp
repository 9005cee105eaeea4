#include "progress/progresstexts.h"

#include "data/valuehelpers.h"
#include "session/excerpt.h"
#include "settings/units.h"

#include <cmath>

namespace progress {

QString ProgressTexts::name(Series series) const
{
    switch (series) {
    case Series::Breast:
        return tr("Breast");
    case Series::Waist:
        return tr("Waist");
    case Series::Hips:
        return tr("Hips");
    case Series::Weight:
        break;
    }
    return tr("Weight");
}

QString ProgressTexts::unit(Series series) const
{
    return series == Series::Weight ? units::weightLabel(m_isMetric)
                                    : units::girthLabel(m_isMetric);
}

QString ProgressTexts::nameWithUnit(Series series) const
{
    return tr("%1 (%2)").arg(name(series), unit(series));
}

QString ProgressTexts::girthsTitle() const
{
    return tr("Girths (%1)").arg(unit(Series::Waist));
}

QString ProgressTexts::balanceTitle() const
{
    return tr("Daily balance (kcal)");
}

QString ProgressTexts::number(double value) const
{
    return locale().toString(roundHalfEven(value, 2), 'f', QLocale::FloatingPointShortest);
}

QString ProgressTexts::change(double value) const
{
    const double rounded = roundHalfEven(value, 2);
    return (rounded > 0 ? locale().positiveSign() : QString()) + number(rounded);
}

QString ProgressTexts::tick(double value, double step) const
{
    const int decimals = step < 1 ? int(std::ceil(-std::log10(step) - 1e-9)) : 0;
    return locale().toString(value, 'f', decimals);
}

QString ProgressTexts::withMinus(QString words)
{
    constexpr QChar minusSign(0x2212);
    const auto isFigure = [&words](qsizetype at) {
        return (at == 0 || !words[at - 1].isLetterOrNumber()) && at + 1 < words.size() &&
               words[at + 1].isDigit();
    };
    for (qsizetype at = words.indexOf(u'-'); at >= 0; at = words.indexOf(u'-', at + 1)) {
        if (isFigure(at))
            words[at] = minusSign;
    }
    return words;
}

QString ProgressTexts::slope(double perWeek) const
{
    const double rounded = roundHalfEven(perWeek, 1);
    const QString sign = rounded > 0 ? locale().positiveSign() : QString();
    // What rounds to no change has neither sign.
    return withMinus(sign + locale().toString(rounded == 0 ? 0 : rounded, 'f', 1));
}

QString ProgressTexts::slopeWithUnit(Series series, const Trend &trend) const
{
    return tr("%1 %2 a week").arg(slope(*trend.perWeek), unit(series));
}

QString ProgressTexts::slopeWords(Series series, const Summary &summary) const
{
    const Trend &trend = summary.trend(series);
    if (trend.days == 0)
        return tr("not measured");
    if (trend.days < leastSlopeDays)
        return tr("measured on fewer than %1 days in four weeks")
            .arg(locale().toString(leastSlopeDays));
    if (!trend.perWeek)
        return tr("measured within less than a week");
    // Which weeks these are is plain from the period, unless it goes on without measurements.
    const QString weeks = trend.last.daysTo(summary.lastDay) < averagedDays
                              ? tr("the last four weeks")
                              : tr("the four weeks to %1").arg(m_text.mediumDate(trend.last));
    return tr("%1 over %2 (%3 days)")
        .arg(slopeWithUnit(series, trend), weeks, locale().toString(trend.days));
}

QStringList ProgressTexts::trendNames(const Summary &summary) const
{
    QStringList names = {tr("trend: %1").arg(slopeWords(Series::Weight, summary))};
    const Trend &trend = summary.trend(Series::Weight);
    if (trend.perWeek) {
        const QString slope = slopeWithUnit(Series::Weight, trend);
        names += tr("trend: %1 (%2 days)").arg(slope, locale().toString(trend.days));
        names += tr("trend: %1").arg(slope);
    }
    names += tr("trend");
    return names;
}

Figure ProgressTexts::changeFigure(Series series, const Summary &summary) const
{
    Figure figure = {name(series), notKnown(), {}};
    if (const auto &difference = summary.change(series))
        figure.value = tr("%1 %2").arg(change(*difference), unit(series));
    const Trend &trend = summary.trend(series);
    if (trend.perWeek) {
        const QString weekly = tr("%1 a week").arg(slope(*trend.perWeek));
        const QString days = tr("%1 days").arg(locale().toString(trend.days));
        figure.trend = {QStringList{tr("%1 (%2)").arg(weekly, days)}, {weekly, days}, {weekly}};
    } else if (trend.days > 0) {
        figure.trend = {QStringList{tr("too few days for a trend")},
                        {tr("too few days"), tr("for a trend")},
                        {tr("no trend")}};
    }
    return figure;
}

std::vector<Figure> ProgressTexts::figures(const Summary &summary) const
{
    std::vector<Figure> figures;
    figures.reserve(allSeries.size() + 2);
    for (const Series series : allSeries)
        figures.push_back(changeFigure(series, summary));
    figures.push_back({tr("Average balance"),
                       summary.averageBalance
                           ? tr("%1 kcal a day").arg(change(std::round(*summary.averageBalance)))
                           : notKnown(),
                       {}});
    figures.push_back(
        {tr("Days with calories"),
         tr("%1 of %2")
             .arg(locale().toString(summary.calorieDays), locale().toString(summary.days)),
         {}});
    return figures;
}

QString ProgressTexts::summaryWords(const Summary &summary) const
{
    QStringList words;
    for (const Figure &figure : figures(summary)) {
        const bool isKnown = figure.value != notKnown();
        words += tr("%1: %2").arg(figure.name, isKnown ? figure.value : tr("not known"));
    }
    QString sentences = tr("Changes over the period: %1").arg(words.join(QStringLiteral(". ")));
    QStringList trends;
    for (const Series series : allSeries) {
        if (summary.trend(series).days > 0)
            trends += tr("%1: %2").arg(name(series), slopeWords(series, summary));
    }
    if (!trends.isEmpty())
        sentences += tr(". Trend: %1").arg(trends.join(QStringLiteral(". ")));
    return sentences;
}

QString ProgressTexts::days(QDate first, QDate last) const
{
    if (first == last)
        return m_text.mediumDate(first);
    return tr("%1 – %2").arg(m_text.mediumDate(first), m_text.mediumDate(last));
}

QString ProgressTexts::longDate(QDate date) const
{
    return locale().toString(date, QLocale::LongFormat);
}

QString ProgressTexts::noteText(const Note &note, qsizetype most) const
{
    QString text = note.NoteText.trimmed();
    if (text.size() <= most)
        return text;
    return tr("%1\n(the beginning of %2 characters)")
        .arg(excerptOf(text, most), locale().toString(text.size()));
}

QString ProgressTexts::valueWords(const Day &day, Series series) const
{
    if (!day.isKnown(series))
        return tr("%1: not measured").arg(name(series));
    const QString words =
        tr("%1: %2 %3").arg(name(series), number(double(day.value(series))), unit(series));
    return day.source == BodySource::FilledIn ? tr("%1 (filled in)").arg(words) : words;
}

QString ProgressTexts::balanceWords(const Day &day) const
{
    if (!day.hasCalories)
        return tr("Balance: no meals or activities recorded");
    QString figure = tr("Balance: %1 kcal").arg(change(day.calories));
    if (day.calories == 0)
        return figure;
    return day.calories < 0 ? tr("%1, less eaten than burnt").arg(figure)
                            : tr("%1, more eaten than burnt").arg(figure);
}

QString ProgressTexts::trendWords(const DaySeries &series, QDate date) const
{
    const auto average = averageAt(series.measured(Series::Weight), date);
    if (!average)
        return {};
    return tr("Trend %1 %2")
        .arg(locale().toString(roundHalfEven(*average, 1), 'f', 1), unit(Series::Weight));
}

QString ProgressTexts::dayWords(const DaySeries &series, qint16 day) const
{
    const Day &record = series.at(day);
    QStringList lines = {longDate(series.date(day))};
    for (const Series which : allSeries) {
        lines += valueWords(record, which);
        if (which == Series::Weight)
            lines += trendWords(series, series.date(day));
    }
    lines.removeAll({});
    lines += balanceWords(record);
    QStringList letters;
    for (const size_t note : notesOn(series, series.date(day)))
        letters += noteLetter(note);
    if (!letters.isEmpty())
        lines += tr("Note: %1").arg(letters.join(QStringLiteral(", ")));
    return lines.join(u'\n');
}

QString noteLetter(size_t note)
{
    return LetterOf(toInt16(qint64(note)));
}

std::vector<size_t> notesOn(const DaySeries &series, QDate date)
{
    std::vector<size_t> found;
    for (size_t note = 0; note < series.notes.size(); ++note) {
        if (series.notes[note].DateFrom <= date && date <= series.notes[note].DateTo)
            found.push_back(note);
    }
    return found;
}

} // namespace progress
