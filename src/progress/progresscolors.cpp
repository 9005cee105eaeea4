#include "progress/progresscolors.h"

namespace progress {

namespace {

QColor withAlpha(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

} // namespace

ProgressColors::ProgressColors(const QPalette &palette)
    : BaseColors(palette)
{
    const auto mark = [this](QRgb inLight, QRgb inDark) {
        return plot::standingOut(QColor(isDark ? inDark : inLight), ground, plot::discernible);
    };
    weight = ink;
    trend = mark(0xA8327F, 0xE58CC8);
    breast = mark(0xC65D07, 0xF0A04B);
    waist = mark(0x1F6FB2, 0x6FB1E6);
    hips = mark(0x0B8A66, 0x45C9A0);
    surplus = mark(0xC4850F, 0xE3AE4B);
    deficit = mark(0x2B628F, 0x4F8CC0);
    note = withAlpha(ink, isDark ? 0.22F : 0.13F);
    month = withAlpha(ink, 0.28F);
    noteEdge = axis;
    noteReach = withAlpha(ink, isDark ? 0.07F : 0.045F);
}

const QColor &ProgressColors::line(Series series) const
{
    switch (series) {
    case Series::Breast:
        return breast;
    case Series::Waist:
        return waist;
    case Series::Hips:
        return hips;
    case Series::Weight:
        break;
    }
    return weight;
}

} // namespace progress
