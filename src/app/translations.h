// The language of what the program shows.
#pragma once

#include <QStringList>

/// Has the application show its texts, and Qt's own, in the first of these languages ("de-AT",
/// best first) that it speaks. English is what is written in the code: where that comes first, or
/// none is spoken, and for each text that a translation lacks, nothing is loaded and English shows.
/// To be called before the first window is made; numbers and dates don't depend on it.
void installTranslations(const QStringList &languages);
