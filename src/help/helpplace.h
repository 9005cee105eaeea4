// Where the help opens.
#pragma once

#include <QRect>

/// Where a window hides least of another: where it is now or at its right, else at its left; all
/// with their frames, and within the screen.
QPoint placeBeside(const QRect &other, const QRect &now, const QRect &screen);
