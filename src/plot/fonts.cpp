#include "plot/fonts.h"

#include <QFontMetricsF>

#include <array>
#include <cmath>

namespace plot {

Fonts::Fonts(const QFont &base, int baseDpi, QPaintDevice *device)
    : plain(base, device)
    , caption(base, device)
    , figure(base, device)
{
    const double points =
        base.pointSizeF() > 0 ? base.pointSizeF() : base.pixelSize() * 72.0 / baseDpi;
    plain.setPointSizeF(points);
    caption.setPointSizeF(points);
    caption.setBold(true);
    figure.setPointSizeF(1.4 * points);
    figure.setBold(true);
}

const QFont &Fonts::font(TextRole role) const
{
    if (role == TextRole::Plain)
        return plain;
    return role == TextRole::Caption ? caption : figure;
}

TextMetrics metricsOf(const Fonts &fonts, QPaintDevice *device)
{
    const std::array metrics = {QFontMetricsF(fonts.plain, device),
                                QFontMetricsF(fonts.caption, device),
                                QFontMetricsF(fonts.figure, device)};
    return {metrics[0].height(), metrics[2].height(),
            [metrics](const QString &text, TextRole role) {
                return std::ceil(metrics[size_t(role)].horizontalAdvance(text));
            }};
}

} // namespace plot
