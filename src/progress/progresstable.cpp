#include "progress/progresstable.h"

namespace progress {

namespace {

constexpr qsizetype mostOfNote = 2000; // characters, once for each day that it spans

QStringList rowOf(const DaySeries &series, qint16 day, const ProgressTexts &texts)
{
    const Day &record = series.at(day);
    QStringList row = {texts.plain().shortDate(series.date(day))};
    // Values filled in are computed in single precision and rounded as stored ones are.
    for (const Series which : allSeries)
        row += !record.isKnown(which) ? QString()
               : record.source == BodySource::Measured
                   ? texts.plain().toText(record.value(which))
                   : texts.plain().toText(double(record.value(which)));
    row += record.source == BodySource::Measured   ? ProgressTexts::tr("measured")
           : record.source == BodySource::FilledIn ? ProgressTexts::tr("filled in")
                                                   : QString();
    row += record.hasCalories ? texts.plain().toText(int(record.calories)) : QString();
    QStringList notes;
    for (const size_t note : notesOn(series, series.date(day)))
        notes += ProgressTexts::tr("%1: %2").arg(noteLetter(note),
                                                 texts.noteText(series.notes[note], mostOfNote));
    row += notes.join(QStringLiteral("; "));
    return row;
}

QString lineOf(const QStringList &cells)
{
    QStringList plain;
    for (const QString &cell : cells)
        plain += cell.simplified(); // a note may hold tabs and line breaks
    return plain.join(u'\t') + u'\n';
}

} // namespace

QString TableText::toTabSeparated() const
{
    QString text = lineOf(header);
    for (const auto *part : {&rows, &foot}) {
        for (const QStringList &row : *part)
            text += lineOf(row);
    }
    return text;
}

QStringList dayHeader(const ProgressTexts &texts)
{
    QStringList header = {ProgressTexts::tr("Date")};
    for (const Series which : allSeries)
        header += texts.nameWithUnit(which);
    return header + QStringList{ProgressTexts::tr("Source"), ProgressTexts::tr("Balance (kcal)"),
                                ProgressTexts::tr("Note")};
}

TableText tableOf(const DaySeries &series, const ProgressTexts &texts)
{
    TableText table = {dayHeader(texts), {}};
    for (qint16 day = 1; day <= series.nDays(); ++day)
        table.rows.push_back(rowOf(series, day, texts));
    for (const QStringList &row : table.rows)
        table.remarks += row.constLast();
    return table;
}

} // namespace progress
