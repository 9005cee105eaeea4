// What somebody is likely to record, judged by the journal.
#pragma once

#include <QDate>
#include <QTime>

/// The weight of one entry in a habit, seen from a moment: 1 for the same time on the same day. It
/// halves with every two weeks in between, and falls to a hundredth over the three hours around the
/// time of day; entries at other hours tell a little, too. A habit is the sum over its entries.
double habitWeight(QDate day, QTime time, const QDateTime &now);
