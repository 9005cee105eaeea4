#include "chart/chartcolors.h"

namespace daychart {

namespace {

QColor mixed(const QColor &a, const QColor &b, double shareOfB)
{
    const auto channel = [shareOfB](float x, float y) { return float(x + (y - x) * shareOfB); };
    return QColor::fromRgbF(channel(a.redF(), b.redF()), channel(a.greenF(), b.greenF()),
                            channel(a.blueF(), b.blueF()));
}

} // namespace

ChartColors ChartColors::of(const QPalette &palette)
{
    ChartColors colors;
    colors.ground = palette.color(QPalette::Base);
    colors.ink = palette.color(QPalette::Text);
    colors.muted = mixed(colors.ink, colors.ground, 0.38);
    colors.grid = mixed(colors.ground, colors.ink, 0.10);
    colors.axis = mixed(colors.ground, colors.ink, 0.45);
    colors.stub = mixed(colors.ground, colors.ink, 0.30);
    colors.balance = colors.ink;
    colors.highlight = palette.color(QPalette::Highlight);
    colors.onHighlight = palette.color(QPalette::HighlightedText);

    const bool dark = colors.ground.lightnessF() < 0.5F;
    colors.carbohydrate = QColor(dark ? 0xE3AE4B : 0xEDB550);
    colors.fat = QColor(dark ? 0x7FB6DE : 0x9CCBEB);
    colors.fatHatch = QColor(dark ? 0x3F6F94 : 0x4C8FBF);
    colors.protein = QColor(dark ? 0x4179AB : 0x2B628F);
    colors.activity = QColor(dark ? 0xB06A4E : 0xE3A184);
    colors.activityEdge = QColor(dark ? 0xE3A184 : 0xA9573A);
    colors.onActivity = QColor(dark ? 0xFFFFFF : 0x33140A);
    colors.band = mixed(colors.ground, colors.activity, dark ? 0.34 : 0.38);
    colors.bandEdge = mixed(colors.band, colors.activityEdge, 0.55);
    return colors;
}

const QColor &ChartColors::tone(Tone tone) const
{
    switch (tone) {
    case Tone::Muted:
        return muted;
    case Tone::OnActivity:
        return onActivity;
    case Tone::Balance:
        return ground; // on a plate of the balance's colour
    case Tone::Ink:
        break;
    }
    return ink;
}

const QColor &ChartColors::fill(Part part) const
{
    switch (part) {
    case Part::Carbohydrate:
        return carbohydrate;
    case Part::Fat:
        return fat;
    case Part::Protein:
        return protein;
    case Part::Activity:
        return activity;
    case Part::Background:
        return band;
    case Part::Balance:
        break;
    }
    return balance;
}

} // namespace daychart
