#include "help/helptext.h"

#include "help/helppages.h"
#include "help/helpstyle.h"

#include <QFileInfo>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QString nameOf(const QUrl &url)
{
    return QFileInfo(url.path()).completeBaseName();
}

/// Calls with the format of each picture of a document.
template<typename Call>
void forEachPicture(const QTextDocument &document, Call call)
{
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        for (auto part = block.begin(); !part.atEnd(); ++part) {
            const QTextCharFormat format = part.fragment().charFormat();
            if (format.isImageFormat())
                call(format.toImageFormat());
        }
    }
}

} // namespace

HelpText::HelpText(const HelpPages &pages, QWidget *parent)
    : QTextBrowser(parent)
    , m_pages(pages)
{
    setObjectName(u"helpText"_s);
    setAccessibleName(tr("Help text"));
    setOpenExternalLinks(true);
    setLineWrapMode(QTextEdit::FixedPixelWidth);
    // Pictures grow with the width: a bar that comes and goes would have them swing.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setStyle();
    connect(this, &QTextBrowser::sourceChanged, this, &HelpText::showNew);
}

void HelpText::showPage(const QString &page)
{
    setSource(QUrl(u"qrc:/help/%1.html"_s.arg(page)));
}

void HelpText::setStyle()
{
    const HelpStyle style(palette(), fontMetrics());
    if (palette().color(QPalette::Link) != style.link) {
        QPalette legible = palette();
        legible.setColor(QPalette::Link, style.link);
        setPalette(legible);
    }
    document()->setDefaultStyleSheet(style.sheet());
    document()->setDocumentMargin(style.margin);
    document()->setIndentWidth(style.margin); // of lists
    fitWidth();
}

void HelpText::showNew(const QUrl &url)
{
    m_page = nameOf(url);
    fitWidth(); // pictures that an earlier visit left may be of another width
    tellPictures();
    mark(m_words);
    Q_EMIT pageShown(m_page);
}

QVariant HelpText::loadResource(int type, const QUrl &url)
{
    if (type == QTextDocument::ImageResource)
        return fitted(nameOf(url));
    return m_pages.html(nameOf(url));
}

// Dot by dot where there is room, else scaled to the dots of the screen.
QImage HelpText::fitted(const QString &picture) const
{
    const bool isDark = palette().color(QPalette::Base).lightness() < 128;
    QImage image = HelpPages::picture(picture, isDark);
    const qreal ratio = devicePixelRatioF();
    const qreal room = lineWrapColumnOrWidth() - 2 * document()->documentMargin();
    const int width = std::max(1, static_cast<int>(room * ratio));
    if (image.width() > width)
        image = image.scaledToWidth(width, Qt::SmoothTransformation);
    image.setDevicePixelRatio(ratio);
    return image;
}

void HelpText::fitWidth()
{
    const HelpStyle style(palette(), fontMetrics());
    setLineWrapColumnOrWidth(std::min(viewport()->width(), style.widestLine));
    forEachPicture(*document(), [this](const QTextImageFormat &picture) {
        const QUrl url = document()->baseUrl().resolved(QUrl(picture.name()));
        document()->addResource(QTextDocument::ImageResource, url, fitted(nameOf(url)));
    });
    document()->markContentsDirty(0, document()->characterCount());
}

// A screen reader comes upon no more than a sign for each of them in the text.
void HelpText::tellPictures()
{
    QStringList texts;
    forEachPicture(*document(), [&texts](const QTextImageFormat &picture) {
        texts << tr("Picture: %1").arg(picture.stringProperty(QTextFormat::ImageAltText));
    });
    setAccessibleDescription(texts.join(u' '));
}

void HelpText::mark(const QStringList &words)
{
    m_words = words;
    m_hits = hitsIn(toPlainText(), words);
    m_currentHit = -1;
    showHits();
}

void HelpText::goToHit(int hit)
{
    m_currentHit = hit;
    QTextCursor cursor(document());
    cursor.setPosition(m_hits[static_cast<size_t>(hit)].position);
    setTextCursor(cursor);
    const int third = viewport()->height() / 3;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect().top() - third);
    showHits();
}

void HelpText::showHits()
{
    const HelpStyle style(palette(), fontMetrics());
    QList<ExtraSelection> marks;
    for (int i = 0; i < hitCount(); ++i) {
        const HelpHit &hit = m_hits[static_cast<size_t>(i)];
        ExtraSelection mark{QTextCursor(document()), {}};
        mark.cursor.setPosition(hit.position);
        mark.cursor.setPosition(hit.position + hit.length, QTextCursor::KeepAnchor);
        mark.format.setBackground(i == m_currentHit ? style.current : style.mark);
        mark.format.setForeground(i == m_currentHit ? style.onCurrent : style.onMark);
        marks << mark;
    }
    setExtraSelections(marks);
}

void HelpText::changeEvent(QEvent *event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() != QEvent::PaletteChange && event->type() != QEvent::FontChange)
        return;
    setStyle();
    reload();
}

void HelpText::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::BackButton)
        backward();
    else if (event->button() == Qt::ForwardButton)
        forward();
    else
        QTextBrowser::mousePressEvent(event);
}

void HelpText::resizeEvent(QResizeEvent *event)
{
    QTextBrowser::resizeEvent(event);
    fitWidth();
}
