#include "ui/tooltips.h"

#include "session/excerpt.h"

#include <QTextDocument>

namespace {

/// The same with places to break at in every word that is too long for a line: a tooltip is as
/// wide as its longest word.
QString withBreaks(QString text)
{
    constexpr int mostInLine = 80;
    constexpr char16_t zeroWidthSpace = 0x200B;
    int inWord = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        inWord = text[i].isSpace() ? 0 : inWord + 1;
        if (inWord > mostInLine && !text[i].isLowSurrogate()) {
            text.insert(i, QChar(zeroWidthSpace));
            inWord = 0;
        }
    }
    return text;
}

} // namespace

QString toolTipOf(const QString &text)
{
    constexpr qsizetype most = 500; // characters
    // Rich text is what tooltips wrap.
    return Qt::convertFromPlainText(withBreaks(excerptOf(text, most)), Qt::WhiteSpaceNormal);
}
