#include "chart/daycolors.h"

namespace daychart {

using plot::mixed;

DayColors::DayColors(const QPalette &palette)
    : BaseColors(palette)
{
    stub = mixed(ground, ink, 0.30);
    balance = ink;
    now = QColor(isDark ? 0xD78FD9 : 0x8A3A94);
    nutrients = {QColor(isDark ? 0x7FB6DE : 0x9CCBEB), QColor(isDark ? 0xE3AE4B : 0xEDB550),
                 QColor(isDark ? 0x4179AB : 0x2B628F)};
    fatHatch = QColor(isDark ? 0x3F6F94 : 0x4C8FBF);
    activity = QColor(isDark ? 0xB06A4E : 0xE3A184);
    activityEdge = QColor(isDark ? 0xE3A184 : 0xA9573A);
    onFill = QColor(isDark ? 0xFFFFFF : 0x33140A);
    band = mixed(ground, activity, isDark ? 0.34 : 0.38);
    bandEdge = mixed(band, activityEdge, 0.55);
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
