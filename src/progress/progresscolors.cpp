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
    weight = ink;
    trend = QColor(isDark ? 0xE58CC8 : 0xA8327F);
    breast = QColor(isDark ? 0xF0A04B : 0xC65D07);
    waist = QColor(isDark ? 0x6FB1E6 : 0x1F6FB2);
    hips = QColor(isDark ? 0x45C9A0 : 0x0B8A66);
    surplus = QColor(isDark ? 0xE3AE4B : 0xEDB550);
    deficit = QColor(isDark ? 0x4F8CC0 : 0x2B628F);
    note = withAlpha(ink, isDark ? 0.22F : 0.13F);
    month = withAlpha(ink, 0.28F);
    noteEdge = withAlpha(ink, 0.45F);
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
