// What a line that was read would store of a record that was found.
#pragma once

#include "quickadd/quicktext.h"
#include "quickadd/recordables.h"

/// An entry of the day, or why there is none.
struct QuickEntry
{
    QString problem; ///< in a sentence for the user; empty where the entry can be stored
    Currency quantity;
    QTime begin; ///< of a meal its time
    QTime end;   ///< of an activity
    qint32 calories = 0;

    bool isValid() const { return problem.isEmpty(); }
};

/// Which records a line can mean: one with a weight meals, one with a span or a duration
/// activities.
Recordables::Among kindsMeant(const QuickText &line);

/// Quantity, times and calories of an entry: what the line says, and of what it doesn't say the
/// usual quantity, the present time, and of an activity the duration that the quantity makes up or
/// the last one. A duration ends at the time given or now.
QuickEntry entryOf(const QuickText &line, const Recordable &record, QTime now);
