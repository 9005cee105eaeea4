#include "progress/ProgressChart.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace progress;

namespace {

/// Where a reader starts: the last day of which anything is known.
qint16 lastKnownDay(const DaySeries &series)
{
    for (qint16 day = series.nDays(); day > 1; --day) {
        if (series.at(day).hasCalories || series.at(day).source != BodySource::None)
            return day;
    }
    return 1;
}

} // namespace

ProgressChart::ProgressChart(const DaySeries &series, const ProgressTexts &texts, QWidget *parent)
    : QWidget(parent)
    , m_series(series)
    , m_texts(texts)
    , m_fonts(font(), logicalDpiY(), this)
    , m_colors(ProgressColors::of(palette()))
    , m_day(lastKnownDay(series))
{
    setObjectName(QStringLiteral("chart"));
    setAccessibleName(tr("General progress chart. %1").arg(texts.summaryWords(summaryOf(series))));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    relayout();
    geometry(); // throws here, if it does
}

QSize ProgressChart::sizeHint() const
{
    return QSize(60, 36) * fontMetrics().height();
}

QSize ProgressChart::minimumSizeHint() const
{
    return QSize(26, 22) * fontMetrics().height();
}

void ProgressChart::showNote(std::optional<size_t> note)
{
    m_note = note;
    update();
}

void ProgressChart::relayout()
{
    m_fonts = daychart::ChartFonts(font(), logicalDpiY(), this);
    m_colors = ProgressColors::of(palette());
    m_geometry.reset();
    m_picture = {};
    setAccessibleDescription(m_texts.dayWords(m_series, m_day));
    update();
}

/// Computed when it is first asked for, however many changes came before.
const ChartGeometry &ProgressChart::geometry()
{
    if (!m_geometry)
        m_geometry =
            progressGeometry(m_series, rect(), daychart::metricsOf(m_fonts, this), m_texts);
    return *m_geometry;
}

void ProgressChart::changeEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
        relayout();
        break;
    default:
        break;
    }
    QWidget::changeEvent(event);
}

void ProgressChart::resizeEvent(QResizeEvent *)
{
    relayout();
}

const QPixmap &ProgressChart::picture()
{
    const qreal ratio = devicePixelRatioF();
    if (m_picture.isNull() || m_picture.devicePixelRatio() != ratio) {
        m_picture = QPixmap(size() * ratio);
        m_picture.setDevicePixelRatio(ratio);
        QPainter painter(&m_picture);
        paintProgressChart(painter, geometry(), m_colors, m_fonts);
    }
    return m_picture;
}

void ProgressChart::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture());
    Emphasis emphasis = {m_note, m_pointed};
    if (!emphasis.day && hasFocus())
        emphasis.day = m_day;
    paintEmphasis(painter, geometry(), m_colors, m_fonts, emphasis);
    if (!hasFocus())
        return;
    const double line = 0.12 * geometry().unit;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(m_colors.base.highlight, line));
    painter.drawRect(geometry().area.adjusted(line / 2, line / 2, -line / 2, -line / 2));
}

std::optional<qint16> ProgressChart::dayAt(QPointF place)
{
    const bool isInside =
        place.x() >= geometry().plot.left() && place.x() <= geometry().plot.right();
    return isInside ? std::optional(geometry().days.dayAt(place.x())) : std::nullopt;
}

void ProgressChart::point(std::optional<qint16> day)
{
    if (day == m_pointed)
        return;
    m_pointed = day;
    update();
    Q_EMIT dayChanged(m_pointed.value_or(m_day));
}

void ProgressChart::moveTo(int day)
{
    m_day = qint16(std::clamp(day, 1, int(m_series.nDays())));
    setAccessibleDescription(m_texts.dayWords(m_series, m_day));
    update();
    Q_EMIT dayChanged(m_day);
}

void ProgressChart::mouseMoveEvent(QMouseEvent *event)
{
    point(dayAt(event->position()));
    if (geometry().noteAt(event->position()))
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void ProgressChart::leaveEvent(QEvent *)
{
    point(std::nullopt);
}

void ProgressChart::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    if (const auto note = geometry().noteAt(event->position()))
        Q_EMIT noteChosen(*note);
    if (const auto day = dayAt(event->position()))
        moveTo(*day);
}

void ProgressChart::keyPressEvent(QKeyEvent *event)
{
    constexpr int week = 7;
    const auto move = [this](int day) {
        m_pointed.reset(); // the keyboard takes over from a resting pointer
        moveTo(day);
    };
    switch (event->key()) {
    case Qt::Key_Left:
        return move(m_day - 1);
    case Qt::Key_Right:
        return move(m_day + 1);
    case Qt::Key_PageUp:
        return move(m_day - week);
    case Qt::Key_PageDown:
        return move(m_day + week);
    case Qt::Key_Home:
        return move(1);
    case Qt::Key_End:
        return move(m_series.nDays());
    default:
        QWidget::keyPressEvent(event);
    }
}

void ProgressChart::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void ProgressChart::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
