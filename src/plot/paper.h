// What every print of the program shares.
#pragma once

#include <QPalette>
#include <QString>

#include <functional>

class QPagedPaintDevice;
class QPainter;

namespace plot {

/// Dark on white, whatever the palette of the screen.
QPalette paperPalette();

/// Prints on landscape pages of the default printer; `paint` starts on the first one. False where
/// there is no default printer or it can't be used.
bool printLandscape(const QString &documentName,
                    const std::function<void(QPainter &, QPagedPaintDevice &)> &paint);

} // namespace plot
