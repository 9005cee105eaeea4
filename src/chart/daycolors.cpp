#include "chart/daycolors.h"

namespace daychart {

using plot::mixed, plot::standingOut;

DayColors::DayColors(const QPalette &palette)
    : BaseColors(palette)
{
    stub = mixed(ground, ink, 0.30);
    balance = ink;
    const auto mark = [this](QRgb inLight, QRgb inDark) {
        return standingOut(QColor(isDark ? inDark : inLight), ground, plot::discernible);
    };
    now = mark(0x8A3A94, 0xD78FD9);
    nutrients = {mark(0x4F97C9, 0x7FB6DE), mark(0xC4850F, 0xE3AE4B), mark(0x2B628F, 0x4179AB)};
    fatHatch = standingOut(QColor(isDark ? 0x3F6F94 : 0x1F5580), nutrients[Nutrient::Fat], 2);
    activity = QColor(isDark ? 0xA8644A : 0xE3A184);
    activityEdge = mark(0xA9573A, 0xE3A184);
    onFill = standingOut(QColor(isDark ? 0xFFFFFF : 0x33140A), activity, plot::legible);
    band = mixed(ground, activity, isDark ? 0.34 : 0.38);
    bandEdge = standingOut(mixed(band, activityEdge, 0.75), ground, plot::discernible);
}

const QColor &DayColors::fill(Part part) const
{
    switch (part) {
    case Part::Activity:
        return activity;
    case Part::Background:
        return band;
    case Part::Balance:
        return balance;
    case Part::Nutrients:
        break;
    }
    return nutrients[nutrientOf(part)];
}

} // namespace daychart
