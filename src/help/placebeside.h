// Where a window opens beside another.
#pragma once

#include <QRect>

/// Where a window hides least of another: the first of where it is now, and at the right, at the
/// left, below and above the other; all with their frames, and within the screen.
QPoint placeBeside(const QRect &other, const QRect &now, const QRect &screen);
