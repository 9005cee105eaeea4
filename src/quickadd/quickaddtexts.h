// What Quick Add says of a line and of an entry.
#pragma once

#include "quickadd/quickentry.h"

/// The figures that were understood, apart from the words, and what can't be read.
QString understoodText(const QuickText &line, const LocaleText &text);

/// "2 × Banana, medium (118 g) · 210 kcal" of a valid entry.
QString quantityText(const Recordable &record, const QuickEntry &entry, const LocaleText &text);
/// "2 × Banana, medium (118 g) · 210 kcal · 08:15", as a list shows it; of an invalid entry why.
QString entryText(const Recordable &record, const QuickEntry &entry, const LocaleText &text);
/// The same with its day: what is stored.
QString storeText(const Recordable &record, const QuickEntry &entry, QDate day,
                  const LocaleText &text);
