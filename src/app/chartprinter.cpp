#include "app/chartprinter.h"

#include "chart/TrellumGraph.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPrinter>
#include <QPrinterInfo>

namespace {

// Dark on white, whatever the palette of the screen.
QPalette paperPalette()
{
    QPalette palette(Qt::white);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Window, Qt::white);
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

} // namespace

bool printDailyChart(const TrellumGraph &graph, const QString &heading, const QString &date)
{
    const QPrinterInfo info = QPrinterInfo::defaultPrinter();
    if (info.isNull())
        return false;
    QPrinter printer(info, QPrinter::HighResolution);
    printer.setPageOrientation(QPageLayout::Landscape);
    printer.setDocName(heading);

    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const QRectF page(QPointF(0, 0), QSizeF(printer.pageRect(QPrinter::DevicePixel).size()));
    QFont font = graph.font();
    font.setPointSizeF(10);
    painter.setFont(font);
    const QPalette palette = paperPalette();
    painter.setPen(palette.color(QPalette::Text));
    const double line = QFontMetricsF(font, &printer).lineSpacing();
    const QRectF top(page.left(), page.top(), page.width(), line);
    painter.drawText(top, Qt::AlignLeft | Qt::AlignVCenter, heading);
    painter.drawText(top, Qt::AlignRight | Qt::AlignVCenter, date);
    graph.paintChart(painter, page.adjusted(0, line * 1.5, 0, 0), palette);
    return painter.end() && printer.printerState() != QPrinter::Error;
}
