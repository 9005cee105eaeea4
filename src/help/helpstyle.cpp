#include "help/helpstyle.h"

#include <QFontMetrics>
#include <QPalette>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

QColor mixed(const QColor &a, const QColor &b, float shareOfB)
{
    const auto channel = [shareOfB](float x, float y) { return x + (y - x) * shareOfB; };
    return QColor::fromRgbF(channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()),
                            channel(a.blueF(), b.blueF()));
}

// Relative luminance and contrast ratio of the web content accessibility guidelines 2.1.
double luminance(const QColor &color)
{
    const auto linear = [](float value) {
        const auto channel = static_cast<double>(value);
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor &a, const QColor &b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

// As near to the colour as is legible, towards that of the text.
QColor legible(const QColor &color, const QColor &text, const QColor &ground)
{
    constexpr double leastContrast = 4.5;
    QColor chosen = color;
    for (int tenths = 1; contrast(chosen, ground) < leastContrast && tenths <= 10; ++tenths)
        chosen = mixed(color, text, static_cast<float>(tenths) / 10);
    return chosen;
}

} // namespace

HelpStyle::HelpStyle(const QPalette &palette, const QFontMetrics &metrics)
    : margin(2 * metrics.averageCharWidth())
    , widestLine(80 * metrics.averageCharWidth() + 2 * margin)
    , space(metrics.height() / 2)
{
    const QColor ground = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    link = legible(palette.color(QPalette::Link), text, ground);
    mark = mixed(ground, palette.color(QPalette::Highlight), 0.3F);
    onMark = legible(text, text, mark);
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
