#include "session/excerpt.h"

QString excerptOf(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    const bool splitsPair = text.at(most - 1).isHighSurrogate();
    return text.first(splitsPair ? most - 1 : most) + QChar(0x2026);
}
