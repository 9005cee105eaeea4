// The fonts of a chart on whatever it is drawn on.
#pragma once

#include "plot/placedtext.h"

#include <QFont>

class QPaintDevice;

namespace plot {

struct Fonts
{
    QFont plain;
    QFont caption;
    QFont figure;

    /// The sizes of a base font at the resolution of a device. A base font sized in pixels is taken
    /// at baseDpi dots per inch.
    Fonts(const QFont &base, int baseDpi, QPaintDevice *device);

    const QFont &font(TextRole role) const;
};

TextMetrics metricsOf(const Fonts &fonts, QPaintDevice *device);

} // namespace plot
