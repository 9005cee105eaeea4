#include "progress/progresscolors.h"

namespace progress {

namespace {

QColor withAlpha(QColor color, float alpha)
{
    color.setAlphaF(alpha);
    return color;
}

} // namespace

ProgressColors ProgressColors::of(const QPalette &palette)
{
    ProgressColors colors;
    colors.base = daychart::ChartColors::of(palette);
    const bool dark = colors.base.ground.lightnessF() < 0.5F;
    colors.weight = colors.base.ink;
    colors.breast = QColor(dark ? 0xF0A04B : 0xC65D07);
    colors.waist = QColor(dark ? 0x6FB1E6 : 0x1F6FB2);
    colors.hips = QColor(dark ? 0x45C9A0 : 0x0B8A66);
    colors.surplus = QColor(dark ? 0xE3AE4B : 0xEDB550);
    colors.deficit = QColor(dark ? 0x4F8CC0 : 0x2B628F);
    colors.note = withAlpha(colors.base.ink, dark ? 0.22F : 0.13F);
    colors.month = withAlpha(colors.base.ink, 0.28F);
    colors.noteEdge = withAlpha(colors.base.ink, 0.45F);
    colors.noteReach = withAlpha(colors.base.ink, dark ? 0.07F : 0.045F);
    return colors;
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
