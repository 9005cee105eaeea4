#include "help/helpstyle.h"

#include "plot/colors.h"

#include <QFontMetrics>
#include <QPalette>

using namespace Qt::StringLiterals;

HelpStyle::HelpStyle(const QPalette &palette, const QFontMetrics &metrics)
    : margin(2 * metrics.averageCharWidth())
    , widestLine(80 * metrics.averageCharWidth() + 2 * margin)
    , space(metrics.height() / 2)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    link = plot::standingOut(palette.color(QPalette::Link), ground, plot::legible);
    mark = plot::mixed(ground, palette.color(QPalette::Highlight), 0.3);
    onMark = plot::standingOut(text, mark, plot::legible);
    current = palette.color(QPalette::Highlight);
    onCurrent = palette.color(QPalette::HighlightedText);
}

QString HelpStyle::sheet() const
{
    return u"h2 { margin-top: 0px; margin-bottom: %1px; }"
           "h3 { margin-top: %2px; margin-bottom: %3px; }"
           "p { margin-top: 0px; margin-bottom: %1px; }"
           "li { margin-bottom: %3px; }"_s.arg(space)
               .arg(3 * space / 2)
               .arg(space / 2);
}
