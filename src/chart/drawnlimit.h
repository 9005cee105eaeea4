// How large an item of the daily chart may be drawn.
#pragma once

#include <vector>

namespace daychart {

/// The largest magnitude that may be drawn to scale. A value of more than 25 times the next smaller
/// one would press all others flat; it is drawn cut off at one and a half times that one.
double drawnLimit(std::vector<double> magnitudes);

} // namespace daychart
