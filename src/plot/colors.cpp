#include "plot/colors.h"

#include <algorithm>
#include <cmath>

namespace plot {

QColor mixed(const QColor &a, const QColor &b, double shareOfB)
{
    const auto channel = [shareOfB](float x, float y) { return float(x + (y - x) * shareOfB); };
    return QColor::fromRgbF(channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()),
                            channel(a.blueF(), b.blueF()));
}

double contrast(const QColor &a, const QColor &b)
{
    const auto luminance = [](const QColor &color) {
        const auto linear = [](double c) {
            return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
               0.0722 * linear(color.blueF()) + 0.05;
    };
    const double ratio = luminance(a) / luminance(b);
    return std::max(ratio, 1 / ratio);
}

QColor standingOut(const QColor &color, const QColor &ground, double least)
{
    constexpr int steps = 64;
    for (int step = 0; step < steps; ++step) {
        for (const QColor &end : {QColor(Qt::white), QColor(Qt::black)}) {
            const QColor nearer = mixed(color, end, double(step) / steps).rgb(); // as it is drawn
            if (contrast(nearer, ground) >= least)
                return nearer;
        }
    }
    return contrast(Qt::white, ground) > contrast(Qt::black, ground) ? Qt::white : Qt::black;
}

BaseColors::BaseColors(const QPalette &palette)
{
    ground = palette.color(QPalette::Base);
    ink = palette.color(QPalette::Text);
    muted = standingOut(mixed(ink, ground, 0.38), ground, legible);
    grid = mixed(ground, ink, 0.10);
    axis = standingOut(mixed(ground, ink, 0.45), ground, discernible);
    // Some styles have white on a blue that is too light for it.
    onHighlight = palette.color(QPalette::HighlightedText);
    highlight = standingOut(palette.color(QPalette::Highlight), onHighlight, legible);
    highlight = standingOut(highlight, ground, discernible);
    onHighlight = standingOut(onHighlight, highlight, legible);
    onFill = ink;
    isDark = ground.lightnessF() < 0.5F;
}

const QColor &BaseColors::tone(Tone tone) const
{
    switch (tone) {
    case Tone::Muted:
        return muted;
    case Tone::OnFill:
        return onFill;
    case Tone::OnInk:
        return ground;
    case Tone::Ink:
        break;
    }
    return ink;
}

} // namespace plot
