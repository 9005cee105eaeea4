// Paints the progress chart on whatever a painter stands for: screen, printer or picture.
#pragma once

#include "plot/fonts.h"
#include "progress/progresscolors.h"
#include "progress/progressgeometry.h"

class QPainter;

namespace progress {

void paintProgressChart(QPainter &painter, const ProgressGeometry &geometry,
                        const ProgressColors &colors, const plot::Fonts &fonts);

/// What is pointed at, on top of the chart: a note's reach, a day and its values.
struct Emphasis
{
    std::optional<size_t> note;
    std::optional<qint16> day;
};

void paintEmphasis(QPainter &painter, const ProgressGeometry &geometry,
                   const ProgressColors &colors, const plot::Fonts &fonts,
                   const Emphasis &emphasis);

} // namespace progress
