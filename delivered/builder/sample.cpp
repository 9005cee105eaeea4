#include "sample.h"

#include "settings/units.h"

#include <QDir>

using namespace Qt::StringLiterals;

namespace delivered {

namespace {

int knownName(const TsvRow &row, const QString &column, const NameIndex &names)
{
    const QString name = row.text(column);
    const std::optional<int> number = names.find(name);
    if (!number)
        row.refuse(u"%1 \"%2\" is not in the catalogue"_s.arg(column, name));
    return *number;
}

Currency positive(const TsvRow &row, const QString &column)
{
    const Currency number = row.decimal(column);
    if (number <= Currency())
        row.refuse(u"%1 should be more than 0"_s.arg(column));
    return number;
}

QList<SampleConsumption> loadConsumptions(const QString &path, const Catalogue &catalogue)
{
    QList<SampleConsumption> consumptions;
    const TsvTable table(path, {u"Day"_s, u"Time"_s, u"Meal"_s, u"Qty"_s});
    for (const TsvRow &row : table.rows()) {
        consumptions << SampleConsumption{row.wholeNumber(u"Day"_s), row.time(u"Time"_s),
                                          knownName(row, u"Meal"_s, catalogue.mealNames),
                                          positive(row, u"Qty"_s)};
    }
    return consumptions;
}

// A quantity counted in time can't be longer than the time that it took.
void checkSpan(const TsvRow &row, const SamplePerformance &performance, const QString &unit)
{
    if (performance.end <= performance.begin)
        row.refuse(u"End should be later than Begin"_s);
    const int minutesPerUnit = unit == u"minute" ? 1 : unit == u"hour" ? 60 : 0;
    const int minutes = performance.begin.secsTo(performance.end) / 60;
    if (performance.qty * minutesPerUnit > Currency::fromInteger(minutes))
        row.refuse(u"Qty is more than the %1 minutes from Begin to End"_s.arg(minutes));
}

QList<SamplePerformance> loadPerformances(const QString &path, const Catalogue &catalogue)
{
    QList<SamplePerformance> performances;
    const TsvTable table(path, {u"Day"_s, u"Begin"_s, u"End"_s, u"Activity"_s, u"Qty"_s});
    for (const TsvRow &row : table.rows()) {
        const SamplePerformance performance{
            row.wholeNumber(u"Day"_s), row.time(u"Begin"_s), row.time(u"End"_s),
            knownName(row, u"Activity"_s, catalogue.activityNames), positive(row, u"Qty"_s)};
        checkSpan(row, performance, catalogue.activities[performance.activity].unit);
        performances << performance;
    }
    return performances;
}

QList<SampleMeasurement> loadMeasurements(const QString &path)
{
    QList<SampleMeasurement> measurements;
    const TsvTable table(path, {u"Day"_s, u"Weight"_s, u"Breast"_s, u"Waist"_s, u"Hips"_s});
    for (const TsvRow &row : table.rows()) {
        const SampleMeasurement measurement{row.wholeNumber(u"Day"_s), positive(row, u"Weight"_s),
                                            positive(row, u"Breast"_s), positive(row, u"Waist"_s),
                                            positive(row, u"Hips"_s)};
        for (const SampleMeasurement &other : measurements) {
            if (other.day == measurement.day)
                row.refuse(u"Day %1 has a measurement already"_s.arg(other.day));
        }
        measurements << measurement;
    }
    return measurements;
}

QList<SampleNote> loadNotes(const QString &path)
{
    QList<SampleNote> notes;
    const TsvTable table(path, {u"FirstDay"_s, u"LastDay"_s, u"Text"_s});
    for (const TsvRow &row : table.rows()) {
        const SampleNote note{row.wholeNumber(u"FirstDay"_s), row.wholeNumber(u"LastDay"_s),
                              row.text(u"Text"_s)};
        if (note.lastDay < note.firstDay)
            row.refuse(u"LastDay is before FirstDay"_s);
        for (const SampleNote &other : notes) {
            if (note.firstDay <= other.lastDay && other.firstDay <= note.lastDay)
                row.refuse(u"The note shares a day with the note \"%1\""_s.arg(other.text));
        }
        notes << note;
    }
    return notes;
}

} // namespace

SampleJournal loadSampleJournal(const QString &folder, const Catalogue &catalogue)
{
    const QDir files(folder);
    return {loadConsumptions(files.filePath(u"meals.tsv"_s), catalogue),
            loadPerformances(files.filePath(u"activities.tsv"_s), catalogue),
            loadMeasurements(files.filePath(u"body.tsv"_s)),
            loadNotes(files.filePath(u"notes.tsv"_s))};
}

CommonRow loadCommon(const QString &path)
{
    const TsvTable table(path,
                         {u"weight"_s, u"Measurement"_s, u"NextBodyID"_s, u"NextMealConsumeID"_s,
                          u"NextExercisePerformID"_s, u"NextUserNoteID"_s, u"installDate"_s});
    if (table.rows().size() != 1)
        throw SourceError(path, 1, u"There should be exactly one row"_s);
    const TsvRow &row = table.rows().constFirst();
    // The sample journal's measurements are metric, and so is the scaling of the activities.
    if (row.text(u"Measurement"_s) != units::codeOf(true))
        row.refuse(u"Measurement should be M"_s);
    const auto counter = [&row](const QString &column) {
        const int value = row.wholeNumber(column);
        if (value < 1)
            row.refuse(u"%1 should be 1 or more"_s.arg(column));
        return value;
    };
    return {positive(row, u"weight"_s),      counter(u"NextBodyID"_s),
            counter(u"NextMealConsumeID"_s), counter(u"NextExercisePerformID"_s),
            counter(u"NextUserNoteID"_s),    row.date(u"installDate"_s)};
}

} // namespace delivered
