// Paints the daily chart on whatever a painter stands for: screen, printer or picture.
#pragma once

#include "chart/chartcolors.h"
#include "chart/chartgeometry.h"

#include <QFont>

class QPainter;
class QPaintDevice;

namespace daychart {

struct ChartFonts
{
    QFont plain;
    QFont caption;
    QFont figure;

    /// The sizes of a base font at the resolution of a device. A base font sized in pixels is taken
    /// at baseDpi dots per inch.
    ChartFonts(const QFont &base, int baseDpi, QPaintDevice *device);

    const QFont &font(TextRole role) const;
};

TextMetrics metricsOf(const ChartFonts &fonts, QPaintDevice *device);

void paintPlacedText(QPainter &painter, const PlacedText &text, const ChartColors &colors,
                     const ChartFonts &fonts);

enum class Medium
{
    Screen,
    Paper
};

/// The whole chart. Hints at what a click would do are left out on paper.
void paintDayChart(QPainter &painter, const ChartGeometry &geometry, const ChartColors &colors,
                   const ChartFonts &fonts, Medium medium);

} // namespace daychart
