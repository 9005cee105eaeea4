// Paints the daily chart on whatever a painter stands for: screen, printer or picture.
#pragma once

#include "chart/daycolors.h"
#include "chart/daygeometry.h"
#include "plot/fonts.h"

class QPainter;

namespace daychart {

enum class Medium
{
    Screen,
    Paper
};

/// The whole chart. Hints at what a click would do are left out on paper.
void paintDayChart(QPainter &painter, const DayGeometry &geometry, const DayColors &colors,
                   const plot::Fonts &fonts, Medium medium);

} // namespace daychart
