// The goals that the progress chart shows.
#pragma once

#include "goals/goals.h"
#include "progress/progresssummary.h"

namespace progress {

class ProgressTexts;

/// The goals in the user's units, as they concern the series.
Targets targetsOf(const Goals &goals, bool isMetric, QDate today);

/// Of a series with a target a sentence each: what it is and when the present trend reaches it.
/// That is the trend of a period that reaches into the last four weeks; of others only the target.
QStringList targetWords(const Summary &summary, const Targets &targets, const ProgressTexts &texts);

/// "about mid-March": a third of a month, with its year where that is not this one.
QString roughly(QDate date, QDate today, const QLocale &locale);

} // namespace progress
