#include "ui/pictureengine.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>

namespace {

// A window decodes all that it is offered before it is first seen, and a picture of 256 pixels
// takes more of that time than all icons of a toolbar.
constexpr int largestOffered = 48;

} // namespace

PictureEngine::PictureEngine(const QString &path, const QList<int> &sizes)
    : m_path(path)
    , m_sizes(sizes)
{
}

QString PictureEngine::fileOf(int size) const
{
    return QStringLiteral("%1-%2.png").arg(m_path).arg(size);
}

bool PictureEngine::isNull()
{
    if (!m_exists)
        m_exists = QFile::exists(fileOf(m_sizes.front()));
    return !*m_exists;
}

QList<QSize> PictureEngine::availableSizes(QIcon::Mode, QIcon::State)
{
    QList<QSize> sizes;
    if (!isNull()) {
        for (const int size : m_sizes) {
            if (size <= largestOffered)
                sizes << QSize(size, size);
        }
    }
    return sizes;
}

// Pictures are made smaller where they must, never larger.
QSize PictureEngine::actualSize(const QSize &size, QIcon::Mode, QIcon::State)
{
    const int side = qMin(qMin(size.width(), size.height()), m_sizes.back());
    return isNull() || side <= 0 ? QSize() : QSize(side, side);
}

QPixmap PictureEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const QSize actual = actualSize(size, mode, state);
    if (actual.isEmpty())
        return {};
    QPixmap &shown = m_shown[{actual.width(), mode}];
    if (!shown.isNull())
        return shown;
    const auto drawn = std::lower_bound(m_sizes.begin(), m_sizes.end(), actual.width());
    shown.load(fileOf(*drawn));
    if (shown.size() != actual)
        shown = shown.scaled(actual, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (mode != QIcon::Normal) {
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        shown = QApplication::style()->generatedIconPixmap(mode, shown, &option);
    }
    return shown;
}

void PictureEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                          QIcon::State state)
{
    const double ratio = painter->device()->devicePixelRatio();
    const QPixmap shown = pixmap(rect.size() * ratio, mode, state);
    const QSize size = shown.size() / ratio;
    const QRect target(rect.center() - QPoint((size.width() - 1) / 2, (size.height() - 1) / 2),
                       size);
    painter->drawPixmap(target, shown);
}
