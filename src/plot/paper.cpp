#include "plot/paper.h"

#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace plot {

QPalette paperPalette()
{
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

bool printLandscape(const QString &documentName,
                    const std::function<void(QPainter &, QPagedPaintDevice &)> &paint)
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return false;
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(documentName);

    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    paint(painter, printer);
    return painter.end() && printer.printerState() != QPrinter::Error;
}

} // namespace plot
