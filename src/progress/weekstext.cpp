#include "progress/weekstext.h"

#include <cmath>

namespace progress {

namespace {

class WeekTexts
{
    Q_DECLARE_TR_FUNCTIONS(progress::WeekTexts)

public:
    WeekTexts(const DaySeries &series, const ProgressTexts &texts)
        : m_series(series)
        , m_texts(texts)
        , m_locale(texts.locale())
    {
        m_locale.setNumberOptions(QLocale::OmitGroupSeparator);
    }

    QStringList row(const Week &week) const;
    QStringList averages(const Week &whole) const;
    QStringList sums(const Week &whole) const;
    QString notes(const Week &week) const;

private:
    QString whole(double value) const { return m_texts.plain().toText(value); }
    QString tenths(double value) const { return m_locale.toString(value, 'f', 1); }
    QString date(qint16 day) const { return m_texts.plain().shortDate(m_series.date(day)); }

    QStringList figures(const Week &week) const;
    QString days(const Week &week) const;
    QStringList calories(const Week &week, int days) const;
    QStringList shares(const Week &week) const;
    QString change(const Week &week) const;
    static QString letters(const Week &week);

    const DaySeries &m_series;
    const ProgressTexts &m_texts;
    QLocale m_locale;
};

QString WeekTexts::days(const Week &week) const
{
    return tr("%1 of %2")
        .arg(m_texts.plain().toText(week.calorieDays), m_texts.plain().toText(week.days()));
}

QStringList WeekTexts::calories(const Week &week, int days) const
{
    if (days == 0)
        return {{}, {}, {}};
    // Without the sign that a rounded zero may keep.
    const double eaten = std::round(week.eaten / days) + 0.0;
    const double balance = std::round(week.balance / days) + 0.0;
    return {whole(eaten), whole(eaten - balance), whole(balance)};
}

QStringList WeekTexts::shares(const Week &week) const
{
    QStringList texts;
    const auto shares = week.shares();
    for (const Nutrient n : allNutrients)
        texts += shares ? m_texts.plain().toText((*shares)[n]) : QString();
    return texts;
}

QString WeekTexts::change(const Week &week) const
{
    if (!week.change)
        return {};
    const QString sign = *week.change > 0   ? QStringLiteral("+")
                         : *week.change < 0 ? QStringLiteral("-")
                                            : QString();
    return sign + tenths(std::abs(*week.change));
}

QString WeekTexts::letters(const Week &week)
{
    QStringList letters;
    for (const size_t note : week.notes)
        letters += noteLetter(note);
    return letters.join(QStringLiteral(", "));
}

QString WeekTexts::notes(const Week &week) const
{
    constexpr qsizetype mostOfEach = 300; // characters
    QStringList texts;
    for (const size_t note : week.notes)
        texts +=
            tr("%1: %2").arg(noteLetter(note), m_texts.noteText(m_series.notes[note], mostOfEach));
    return texts.join(u'\n');
}

QStringList WeekTexts::figures(const Week &week) const
{
    return QStringList{days(week)} + calories(week, week.calorieDays) + shares(week) +
           QStringList{week.weight ? tenths(*week.weight) : QString()};
}

QStringList WeekTexts::row(const Week &week) const
{
    return QStringList{date(week.firstDay)} + figures(week) +
           QStringList{change(week), letters(week)};
}

QStringList WeekTexts::averages(const Week &whole) const
{
    return QStringList{tr("Average")} + figures(whole) + QStringList{QString(), QString()};
}

QStringList WeekTexts::sums(const Week &whole) const
{
    return QStringList{tr("Sum"), days(whole)} + calories(whole, whole.calorieDays > 0 ? 1 : 0) +
           QStringList{QString(), QString(), QString(), QString(), change(whole), QString()};
}

} // namespace

QStringList weekHeader(const ProgressTexts &texts)
{
    const QString unit = texts.unit(Series::Weight);
    return {ProgressTexts::tr("Week of"),        ProgressTexts::tr("Days"),
            ProgressTexts::tr("Eaten (kcal)"),   ProgressTexts::tr("Burnt (kcal)"),
            ProgressTexts::tr("Balance (kcal)"), ProgressTexts::tr("Fat (%)"),
            ProgressTexts::tr("Carboh. (%)"),    ProgressTexts::tr("Protein (%)"),
            texts.nameWithUnit(Series::Weight),  ProgressTexts::tr("Change (%1)").arg(unit),
            ProgressTexts::tr("Notes")};
}

QString meaningOf(WeekColumn column)
{
    switch (column) {
    case WeekColumn::First:
        return ProgressTexts::tr("The first day of the week, or of what the period has of it");
    case WeekColumn::Days:
        return ProgressTexts::tr(
            "Days with a meal or an activity, of the days of the week that lie in the period");
    case WeekColumn::Eaten:
    case WeekColumn::Burnt:
    case WeekColumn::Balance:
        return ProgressTexts::tr("A day, on average of the days with a meal or an activity");
    case WeekColumn::Fat:
    case WeekColumn::Carbohydrate:
    case WeekColumn::Protein:
        return ProgressTexts::tr("Share of the calories that come from nutrients");
    case WeekColumn::Weight:
        return ProgressTexts::tr("Mean of the measured days");
    case WeekColumn::Change:
        return ProgressTexts::tr("Of the mean weight, from the week before");
    case WeekColumn::Notes:
        break;
    }
    return {};
}

TableText weeksTable(const DaySeries &series, const Weeks &weeks, const ProgressTexts &texts)
{
    const WeekTexts words(series, texts);
    TableText table = {
        weekHeader(texts), {}, {words.averages(weeks.whole), words.sums(weeks.whole)}};
    table.rows.reserve(weeks.weeks.size());
    for (const Week &week : weeks.weeks) {
        table.rows.push_back(words.row(week));
        table.remarks += words.notes(week);
    }
    return table;
}

} // namespace progress
