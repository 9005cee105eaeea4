// The words and figures of general progress: on the chart, beside it and in the table.
#pragma once

#include "progress/progresssummary.h"
#include "session/localetext.h"

#include <QCoreApplication>
#include <QStringList>

#include <array>

namespace progress {

/// How much is told of a trend's slope, or why there is none, and in how many lines.
enum class TrendForm
{
    OneLine,
    TwoLines,
    SlopeAlone ///< without the days that it rests on
};
inline constexpr size_t trendForms = 3;

/// A figure in the line of figures.
struct Figure
{
    QString name;
    QString value;
    std::array<QStringList, trendForms> trend; ///< lines in each form; none for what has no trend

    const QStringList &trendIn(TrendForm form) const { return trend[size_t(form)]; }
};

class ProgressTexts
{
    Q_DECLARE_TR_FUNCTIONS(progress::ProgressTexts)

public:
    ProgressTexts(const LocaleText &text, bool isMetric)
        : m_text(text)
        , m_isMetric(isMetric)
    {
    }

    const QLocale &locale() const { return m_text.locale(); }
    const LocaleText &plain() const { return m_text; }

    QString name(Series series) const;
    /// "kg", "lb", "cm" or "inch".
    QString unit(Series series) const;
    /// "Waist (cm)"
    QString nameWithUnit(Series series) const;
    QString girthsTitle() const;
    QString balanceTitle() const;

    /// At most two decimals.
    QString number(double value) const;
    /// The same with its sign, also when it is positive.
    QString change(double value) const;
    /// Of a scale with that step.
    QString tick(double value, double step) const;
    QString notKnown() const { return QStringLiteral("–"); }
    /// The same with minus signs that are as wide as a plus, for what is only looked at or read
    /// out; hyphens stay.
    static QString withMinus(QString words);

    /// "−0.4 kg a week over the last four weeks (12 days)", or why there is no slope.
    QString slopeWords(Series series, const Summary &summary) const;
    /// What the line of the weight's trend is called, from the most words to the fewest.
    QStringList trendNames(const Summary &summary) const;

    std::vector<Figure> figures(const Summary &summary) const;
    /// The line of figures as a sentence for a screen reader.
    QString summaryWords(const Summary &summary) const;

    /// "22 Apr 2026 – 22 Jul 2026"; a single day is said once.
    QString days(QDate first, QDate last) const;
    QString longDate(QDate date) const;
    /// What a note says; of a longer one the first so many characters, and how many there are.
    QString noteText(const Note &note, qsizetype most) const;

    /// Of a period without any record.
    QString emptyWords() const
    {
        return tr("There are no measurements, meals, activities or notes in this period.");
    }
    /// Everything that is known of a day, a line for each figure, missing ones said to be missing;
    /// the weight's trend only where there is one.
    QString dayWords(const DaySeries &series, qint16 day) const;

private:
    QString slope(double perWeek) const;
    QString slopeWithUnit(Series series, const Trend &trend) const;
    Figure changeFigure(Series series, const Summary &summary) const;
    QString valueWords(const Day &day, Series series) const;
    /// Empty where there is none.
    QString trendWords(const DaySeries &series, QDate date) const;
    QString balanceWords(const Day &day) const;

    const LocaleText &m_text;
    bool m_isMetric;
};

/// The letter of a note by its place in the list.
QString noteLetter(size_t note);
/// The places of the notes that a date lies in.
std::vector<size_t> notesOn(const DaySeries &series, QDate date);

} // namespace progress
