// The sample journal and the common parameters, read from their sources and checked.
#pragma once

#include "catalogue.h"

namespace delivered {

// Days are counted from the install date, which is day 0.

struct SampleConsumption
{
    int day;
    QTime time;
    int meal; ///< index in Catalogue::meals
    Currency qty;
};

struct SamplePerformance
{
    int day;
    QTime begin;
    QTime end;    ///< later than the begin
    int activity; ///< index in Catalogue::activities
    Currency qty;
};

/// Kilograms and centimetres; one at most on a day.
struct SampleMeasurement
{
    int day;
    Currency weight;
    Currency breast;
    Currency waist;
    Currency hips;
};

/// Both days count; no two notes share a day.
struct SampleNote
{
    int firstDay;
    int lastDay;
    QString text;
};

struct SampleJournal
{
    QList<SampleConsumption> consumptions;
    QList<SamplePerformance> performances;
    QList<SampleMeasurement> measurements;
    QList<SampleNote> notes;
};

/// Reads meals.tsv, activities.tsv, body.tsv and notes.tsv; throws SourceError.
SampleJournal loadSampleJournal(const QString &folder, const Catalogue &catalogue);

/// The row of table Common; the counters hold the keys given out last.
struct CommonRow
{
    Currency weight; ///< kilograms
    int nextBodyId;
    int nextMealConsumeId;
    int nextExercisePerformId;
    int nextUserNoteId;
    QDate installDate;
};

/// Reads a table with one row; throws SourceError.
CommonRow loadCommon(const QString &path);

} // namespace delivered
