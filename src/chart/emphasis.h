// What the pointer and the keyboard stand on, drawn over the chart.
#pragma once

#include "chart/chartpainter.h"
#include "chart/charttexts.h"
#include "chart/navigation.h"

namespace daychart {

/// Outlines an item, tints a caption, and at a free place draws a line down to its time.
void paintEmphasis(QPainter &painter, const DayGeometry &geometry, const DayColors &colors,
                   const plot::Fonts &fonts, const ChartTexts &texts, const Cursor &cursor,
                   bool strong);

} // namespace daychart
