#include "app/dayviewlayout.h"

#include <QtMath>

namespace {

constexpr int leastWidth = 200;
constexpr int leastHeight = 1200;
constexpr int aroundGraph = 120;    // left and right of the chart together
constexpr int aboveAndBelow = 1050; // heading, buttons and what lies between
constexpr int headingHeight = 420;
constexpr int buttonTopFromBottom = 585;
constexpr int dateTopFromBottom = 405;
constexpr int bottomMargin = 75;

} // namespace

bool layOutDayView(QSize view, double pixelsPerTwip, DayViewLayout &layout)
{
    const double width = view.width() / pixelsPerTwip;
    const double height = view.height() / pixelsPerTwip;
    if (width < leastWidth || height < leastHeight)
        return false;
    const auto pixels = [&](double twips) { return qRound(twips * pixelsPerTwip); };
    layout.heading =
        QRect(pixels(aroundGraph), 0, pixels(width - aroundGraph), pixels(headingHeight));
    layout.graph = QRect(pixels(aroundGraph / 2.0), pixels(headingHeight),
                         pixels(width - aroundGraph), pixels(height - aboveAndBelow));
    layout.buttonTop = pixels(height - buttonTopFromBottom);
    layout.dateTop = pixels(height - dateTopFromBottom);
    layout.bottom = pixels(height - bottomMargin);
    return true;
}
