// General progress on paper and in picture files: the chart and, beside it, the notes' texts.
#pragma once

#include "progress/progresspainter.h"
#include "progress/progresstexts.h"

#include <QImage>

class QIODevice;
class QPagedPaintDevice;

namespace progress {

/// Size of the base font on paper and in PDF files.
inline constexpr double paperPoints = 9;

/// What a page shows; the fonts' sizes are taken from the base font.
struct PageContents
{
    const DaySeries &series;
    const ProgressTexts &texts;
    QString heading;
    QFont font;
};

/// The chart with the notes beside it on the first page, notes that find no room there on more.
/// Of a note that would fill more than a page, the beginning.
void paintPages(QPainter &painter, QPagedPaintDevice &paper, const PageContents &contents);

/// A picture with the chart in that size and the beginnings of the notes below it. The resolution
/// is in dots per inch.
QImage pictureOf(const PageContents &contents, QSize chartSize, int resolution);

/// The same as a PDF, A4 or Letter after the locale. False where the device can't be written.
bool writePdf(QIODevice &device, const PageContents &contents);

} // namespace progress
