#include "plot/colors.h"

namespace plot {

QColor mixed(const QColor &a, const QColor &b, double shareOfB)
{
    const auto channel = [shareOfB](float x, float y) { return float(x + (y - x) * shareOfB); };
    return QColor::fromRgbF(channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()),
                            channel(a.blueF(), b.blueF()));
}

BaseColors::BaseColors(const QPalette &palette)
{
    ground = palette.color(QPalette::Base);
    ink = palette.color(QPalette::Text);
    muted = mixed(ink, ground, 0.38);
    grid = mixed(ground, ink, 0.10);
    axis = mixed(ground, ink, 0.45);
    highlight = palette.color(QPalette::Highlight);
    onHighlight = palette.color(QPalette::HighlightedText);
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
