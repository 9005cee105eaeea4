#include "plot/chartwidget.h"

#include "plot/colors.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>

namespace plot {

namespace {

/// Of a chart whose own class installs no other.
QAccessibleInterface *chartAccessible(const QString &, QObject *object)
{
    auto *chart = dynamic_cast<ChartWidget *>(object);
    return chart ? new QAccessibleWidget(chart, QAccessible::Chart) : nullptr;
}

} // namespace

ChartWidget::ChartWidget(QWidget *parent)
    : QWidget(parent)
    , m_fonts(font(), logicalDpiY(), this)
{
    [[maybe_unused]] static const bool installed =
        (QAccessible::installFactory(chartAccessible), true);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ChartWidget::relayout()
{
    m_fonts = Fonts(font(), logicalDpiY(), this);
    m_isNew = true;
    m_picture = {};
    forgetLayout();
    update();
}

void ChartWidget::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::LocaleChange:
    case QEvent::LanguageChange:
        relayout();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void ChartWidget::resizeEvent(QResizeEvent *)
{
    relayout();
}

// The window system takes its time to bring a window up, which is used.
void ChartWidget::showEvent(QShowEvent *)
{
    QMetaObject::invokeMethod(this, &ChartWidget::computeLayout, Qt::QueuedConnection);
}

void ChartWidget::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ChartWidget::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}

void ChartWidget::keepPicture()
{
    const qreal ratio = devicePixelRatioF();
    if (!m_picture.isNull() && m_picture.devicePixelRatio() == ratio)
        return;
    m_picture = QPixmap(size() * ratio);
    m_picture.setDevicePixelRatio(ratio);
    QPainter painter(&m_picture);
    paintPicture(painter);
}

void ChartWidget::paintEvent(QPaintEvent *)
{
    // Most charts are looked at and not pointed at: the first time no picture is made.
    if (!m_isNew)
        keepPicture();
    QPainter painter(this);
    if (m_isNew)
        paintPicture(painter);
    else
        painter.drawPixmap(0, 0, m_picture);
    m_isNew = false;
    paintEmphasis(painter);
    if (!showsFocus())
        return;
    const double line = 0.12 * metricsOf(m_fonts, this).lineHeight;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(BaseColors(palette()).highlight, line));
    painter.drawRect(QRectF(rect()).adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

} // namespace plot
