// What the daily chart says of an item besides its figures.
#pragma once

#include "chart/daydata.h"
#include "data/value.h"

class LocaleText;

/// The name and quantity of a record of the day, each short enough for a line.
daychart::ItemWords itemWords(const LocaleText &text, const QString &name, const Value &quantity,
                              const QString &unit);
