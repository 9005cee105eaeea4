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

std::vector<Figure> ProgressTexts::figures(const Summary &summary) const
{
    std::vector<Figure> figures;
    for (const Series series : allSeries) {
        const auto &difference = summary.change(series);
        figures.push_back({name(series), difference
                                             ? tr("%1 %2").arg(change(*difference), unit(series))
                                             : notKnown()});
    }
    figures.push_back({tr("Average balance"),
                       summary.averageBalance
                           ? tr("%1 kcal a day").arg(change(std::round(*summary.averageBalance)))
                           : notKnown()});
    figures.push_back({tr("Days with calories"), tr("%1 of %2")
                                                     .arg(locale().toString(summary.calorieDays),
                                                          locale().toString(summary.days))});
    return figures;
}

QString ProgressTexts::summaryWords(const Summary &summary) const
{
    QStringList words;
    for (const Figure &figure : figures(summary)) {
        const bool isKnown = figure.value != notKnown();
        words += tr("%1: %2").arg(figure.name, isKnown ? figure.value : tr("not known"));
    }
    return tr("Changes over the period: %1").arg(words.join(QStringLiteral(". ")));
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

QString ProgressTexts::dayWords(const DaySeries &series, qint16 day) const
{
    const Day &record = series.at(day);
    QStringList lines = {longDate(series.date(day))};
    for (const Series which : allSeries)
        lines += valueWords(record, which);
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
