// Paints the progress chart on whatever a painter stands for: screen, printer or picture.
#pragma once

#include "chart/chartpainter.h"
#include "progress/progresscolors.h"

namespace progress {

void paintProgressChart(QPainter &painter, const ChartGeometry &geometry,
                        const ProgressColors &colors, const daychart::ChartFonts &fonts);

/// What is pointed at, on top of the chart: a note's reach, a day and its values.
struct Emphasis
{
    std::optional<size_t> note;
    std::optional<qint16> day;
};

void paintEmphasis(QPainter &painter, const ChartGeometry &geometry, const ProgressColors &colors,
                   const daychart::ChartFonts &fonts, const Emphasis &emphasis);

} // namespace progress
