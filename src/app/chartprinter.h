// The daily chart on paper.
#pragma once

#include <QString>

class TrellumGraph;

/// Prints the chart with its heading and its date on one landscape page of the default printer.
/// False where there is none or it can't be used.
bool printDailyChart(const TrellumGraph &graph, const QString &heading, const QString &date);
