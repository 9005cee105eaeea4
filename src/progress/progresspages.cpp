#include "progress/progresspages.h"

#include "plot/paper.h"
#include "progress/noteflow.h"
#include "progress/progresslayout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPdfWriter>

#include <cmath>

namespace progress {

namespace {

// In heights of a line of text.
constexpr double columnWidth = 15;
constexpr double columnGap = 1.2;
constexpr double headingHeight = 1.6;

// Characters: of a note on paper about a page, in a picture as many of all notes together.
constexpr qsizetype mostOnPaper = 10000;
constexpr qsizetype mostInPicture = 40000;

double lineHeight(const QFont &font, QPaintDevice *device)
{
    return QFontMetricsF(font, device).height();
}

struct PageNumber
{
    size_t page = 1;
    size_t pages = 1;
};

void paintHeading(QPainter &painter, const PageContents &contents, const QRectF &page,
                  PageNumber number)
{
    const QRectF line(page.topLeft(),
                      QSizeF(page.width(), lineHeight(contents.font, painter.device())));
    QFont bold = contents.font;
    bold.setBold(true);
    painter.setPen(plot::paperPalette().color(QPalette::Text));
    painter.setFont(bold);
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter, contents.heading);
    painter.setFont(contents.font);
    const Period &period = contents.series.period();
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter,
                     contents.texts.days(period.dateFrom, period.dateTo));
    if (number.pages > 1)
        painter.drawText(line, Qt::AlignHCenter | Qt::AlignVCenter,
                         ProgressTexts::tr("Page %1 of %2").arg(number.page).arg(number.pages));
}

void paintChart(QPainter &painter, const PageContents &contents, const QRectF &area)
{
    QPaintDevice *device = painter.device();
    const plot::Fonts fonts(contents.font, device->logicalDpiY(), device);
    paintProgressChart(
        painter,
        progressGeometry(contents.series, area, plot::metricsOf(fonts, device), contents.texts),
        ProgressColors(plot::paperPalette()), fonts);
}

} // namespace

void paintPages(QPainter &painter, QPagedPaintDevice &paper, const PageContents &contents)
{
    const double line = lineHeight(contents.font, &paper);
    const QRectF page(0, 0, paper.width(), paper.height());
    const QRectF body = page.adjusted(0, headingHeight * line, 0, 0);
    const double column = columnWidth * line;
    const double across = column + columnGap * line;
    const NoteFlow notes(contents.series, contents.texts, contents.font, &paper, column,
                         mostOnPaper);
    const std::vector<NoteFlow::Column> columns = notes.columns(body.height());
    const size_t perPage = std::max<size_t>(1, size_t((body.width() + columnGap * line) / across));
    const size_t beside = std::min<size_t>(1, columns.size()); // of the chart
    const size_t pages = 1 + (columns.size() - beside + perPage - 1) / perPage;

    paintHeading(painter, contents, page, {1, pages});
    paintChart(painter, contents, body.adjusted(0, 0, -across * double(beside), 0));
    if (beside > 0)
        notes.paint(painter, columns.front(), QPointF(body.right() - column, body.top()));
    for (size_t i = beside; i < columns.size(); ++i) {
        const size_t place = (i - beside) % perPage;
        if (place == 0) {
            paper.newPage();
            paintHeading(painter, contents, page, {2 + (i - beside) / perPage, pages});
        }
        notes.paint(painter, columns[i], QPointF(body.left() + double(place) * across, body.top()));
    }
}

QImage pictureOf(const PageContents &contents, QSize chartSize, int resolution)
{
    constexpr double metersPerInch = 0.0254;
    constexpr double leastHeight = 8; // of a column of notes, in lines
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
    const double gap = columnGap * line;
    const QRectF chart(QPointF(edge, edge + headingHeight * line), chartSize);

    const double count =
        std::max(1.0, std::floor((chart.width() + gap) / (columnWidth * line + gap)));
    const double column = (chart.width() + gap) / count - gap;
    const auto noteCount = qsizetype(contents.series.notes.size());
    const NoteFlow notes(contents.series, contents.texts, contents.font, &sample, column,
                         mostInPicture / std::max<qsizetype>(20, noteCount));
    const auto columns = notes.columnsBeside(size_t(count), leastHeight * line);
    double notesHeight = 0;
    for (const NoteFlow::Column &dealt : columns)
        notesHeight = std::max(notesHeight, dealt.height + gap);

    const QRectF page(edge, edge, chart.width(), chart.bottom() + notesHeight - edge);
    QImage image = blank(QSizeF(page.right() + edge, page.bottom() + edge).toSize());
    QPainter painter(&image);
    paintHeading(painter, contents, page, {});
    paintChart(painter, contents, chart);
    for (size_t i = 0; i < columns.size(); ++i)
        notes.paint(painter, columns[i],
                    QPointF(chart.left() + double(i) * (column + gap), chart.bottom() + gap));
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
