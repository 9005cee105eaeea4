#include "progress/progresspages.h"

#include "ui/paper.h"

#include <QAbstractTextDocumentLayout>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>
#include <QTextCursor>
#include <QTextDocument>

#include <cmath>

namespace progress {

namespace {

// In heights of a line of text.
constexpr double columnWidth = 15;
constexpr double columnGap = 1.2;
constexpr double headingHeight = 1.6;

/// The notes' texts, flowing through columns of one width and height.
class NoteColumns
{
public:
    NoteColumns(const PageContents &contents, QPaintDevice *device, QSizeF column)
        : m_size(column)
    {
        m_document.setDefaultFont(contents.font);
        m_document.setDocumentMargin(0);
        m_document.documentLayout()->setPaintDevice(device);
        QTextCursor cursor(&m_document);
        QTextCharFormat plain;
        QTextCharFormat bold;
        bold.setFontWeight(QFont::Bold);
        QTextBlockFormat spaced;
        // The document scales this to the device's resolution itself.
        spaced.setBottomMargin(0.6 * QFontInfo(contents.font).pointSizeF());
        cursor.setBlockFormat(spaced);
        for (size_t i = 0; i < contents.series.notes.size(); ++i) {
            const Note &note = contents.series.notes[i];
            if (i > 0)
                cursor.insertBlock(spaced, plain);
            cursor.insertText(QStringLiteral("%1  %2").arg(
                                  noteLetter(i), contents.texts.days(note.DateFrom, note.DateTo)),
                              bold);
            cursor.insertText(QChar(QChar::LineSeparator) + note.NoteText.trimmed(), plain);
        }
        m_document.setPageSize(column);
    }

    int count() const { return m_document.isEmpty() ? 0 : m_document.pageCount(); }

    void paint(QPainter &painter, int column, QPointF at)
    {
        QAbstractTextDocumentLayout::PaintContext context;
        context.palette = paperPalette();
        context.clip = QRectF(QPointF(0, column * m_size.height()), m_size);
        painter.save();
        painter.translate(at - context.clip.topLeft());
        painter.setClipRect(context.clip);
        m_document.documentLayout()->draw(&painter, context);
        painter.restore();
    }

private:
    QTextDocument m_document;
    QSizeF m_size;
};

double lineHeight(const QFont &font, QPaintDevice *device)
{
    return QFontMetricsF(font, device).height();
}

void paintHeading(QPainter &painter, const PageContents &contents, const QRectF &page)
{
    const QRectF line(page.topLeft(),
                      QSizeF(page.width(), lineHeight(contents.font, painter.device())));
    QFont bold = contents.font;
    bold.setBold(true);
    painter.setPen(paperPalette().color(QPalette::Text));
    painter.setFont(bold);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, contents.heading);
    painter.setFont(contents.font);
    const Period &period = contents.series.period();
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter,
                     contents.texts.days(period.dateFrom, period.dateTo));
}

void paintChart(QPainter &painter, const PageContents &contents, const QRectF &area)
{
    QPaintDevice *device = painter.device();
    const daychart::ChartFonts fonts(contents.font, device->logicalDpiY(), device);
    paintProgressChart(
        painter,
        progressGeometry(contents.series, area, daychart::metricsOf(fonts, device), contents.texts),
        ProgressColors::of(paperPalette()), fonts);
}

} // namespace

void paintPages(QPainter &painter, QPagedPaintDevice &paper, const PageContents &contents)
{
    const double line = lineHeight(contents.font, &paper);
    const QRectF page(0, 0, paper.width(), paper.height());
    const QRectF body = page.adjusted(0, headingHeight * line, 0, 0);
    const double column = columnWidth * line;
    const double across = column + columnGap * line;
    NoteColumns notes(contents, &paper, QSizeF(column, body.height()));

    paintHeading(painter, contents, page);
    if (notes.count() == 0) {
        paintChart(painter, contents, body);
        return;
    }
    paintChart(painter, contents, body.adjusted(0, 0, -across, 0));
    notes.paint(painter, 0, QPointF(body.right() - column, body.top()));

    const int columnsPerPage = std::max(1, int((body.width() + columnGap * line) / across));
    for (int i = 1; i < notes.count(); ++i) {
        const int place = (i - 1) % columnsPerPage;
        if (place == 0) {
            paper.newPage();
            paintHeading(painter, contents, page);
        }
        notes.paint(painter, i, QPointF(body.left() + place * across, body.top()));
    }
}

QImage pictureOf(const PageContents &contents, QSize chartSize, int resolution)
{
    constexpr double metersPerInch = 0.0254;
    const int dotsPerMeter = int(std::lround(resolution / metersPerInch));
    const auto blank = [dotsPerMeter](QSize size) {
        QImage image(size, QImage::Format_RGB32);
        image.setDotsPerMeterX(dotsPerMeter);
        image.setDotsPerMeterY(dotsPerMeter);
        image.fill(Qt::white);
        return image;
    };
    QImage sample = blank({1, 1});
    const double line = lineHeight(contents.font, &sample);
    const double edge = 0.6 * line;
    const double column = columnWidth * line;
    const double across = column + columnGap * line;
    NoteColumns notes(contents, &sample, QSizeF(column, chartSize.height()));

    const QRectF chart(QPointF(edge, edge + headingHeight * line), chartSize);
    const QRectF page(edge, edge, chart.width() + notes.count() * across, chart.bottom() - edge);
    QImage image = blank(QSizeF(page.right() + edge, page.bottom() + edge).toSize());
    QPainter painter(&image);
    paintHeading(painter, contents, page);
    paintChart(painter, contents, chart);
    for (int i = 0; i < notes.count(); ++i)
        notes.paint(painter, i,
                    QPointF(chart.right() + columnGap * line + i * across, chart.top()));
    return image;
}

bool writePdf(QIODevice &device, const PageContents &contents)
{
    constexpr double marginMillimeters = 12;
    QPdfWriter writer(&device);
    const bool usesLetter =
        contents.texts.locale().measurementSystem() == QLocale::ImperialUSSystem;
    writer.setPageLayout(QPageLayout(
        QPageSize(usesLetter ? QPageSize::Letter : QPageSize::A4), QPageLayout::Landscape,
        QMarginsF(marginMillimeters, marginMillimeters, marginMillimeters, marginMillimeters),
        QPageLayout::Millimeter));
    writer.setTitle(contents.heading);
    writer.setCreator(QStringLiteral("Corvana"));
    QPainter painter;
    if (!painter.begin(&writer))
        return false;
    paintPages(painter, writer, contents);
    return painter.end();
}

} // namespace progress
