// How help pages look.
#pragma once

#include <QColor>
#include <QString>

class QFontMetrics;
class QPalette;

/// Sizes in pixels, taken from the font, and colours, taken from the palette and legible on its
/// Base.
struct HelpStyle
{
    int margin;
    int widestLine; ///< with the margins; longer ones are hard to read
    int space;      ///< between paragraphs
    QColor link;
    QColor mark; ///< behind what was found
    QColor onMark;
    QColor current; ///< behind the hit gone to
    QColor onCurrent;

    HelpStyle(const QPalette &palette, const QFontMetrics &metrics);

    /// What QTextDocument::setDefaultStyleSheet takes.
    QString sheet() const;
};
