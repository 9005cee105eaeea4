#include "app/chartprinter.h"

#include "chart/TrellumGraph.h"
#include "plot/paper.h"

#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPainter>

bool printDailyChart(const TrellumGraph &graph, const QString &heading, const QString &date)
{
    return plot::printLandscape(heading, [&](QPainter &painter, QPagedPaintDevice &paper) {
        const QRectF page(0, 0, paper.width(), paper.height());
        QFont font = graph.font();
        font.setPointSizeF(10);
        painter.setFont(font);
        const QPalette palette = plot::paperPalette();
        painter.setPen(palette.color(QPalette::Text));
        const double line = QFontMetricsF(font, &paper).lineSpacing();
        const QRectF top(page.left(), page.top(), page.width(), line);
        painter.drawText(top, Qt::AlignLeft | Qt::AlignVCenter, heading);
        painter.drawText(top, Qt::AlignRight | Qt::AlignVCenter, date);
        graph.paintChart(painter, page.adjusted(0, line * 1.5, 0, 0), palette);
    });
}
