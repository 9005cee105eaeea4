#include "progress/progresschart.h"

#include "progress/progresslayout.h"
#include "progress/targets.h"

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
    : ChartWidget(parent)
    , m_series(series)
    , m_texts(texts)
    , m_colors(ProgressColors(palette()))
{
    setObjectName(QStringLiteral("chart"));
    startAnew();
}

void ProgressChart::startAnew()
{
    m_day = lastKnownDay(m_series);
    m_pointed.reset();
    m_note.reset();
    const Summary summary = summaryOf(m_series);
    const QStringList words = QStringList(m_texts.summaryWords(summary)) +
                              targetWords(summary, m_series.targets, m_texts);
    setAccessibleName(tr("General progress chart. %1").arg(words.join(QStringLiteral(". "))));
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

void ProgressChart::forgetLayout()
{
    m_colors = ProgressColors(palette());
    m_geometry.reset();
    setAccessibleDescription(m_texts.dayWords(m_series, m_day));
}

const ProgressGeometry &ProgressChart::geometry()
{
    if (!m_geometry)
        m_geometry = progressGeometry(m_series, rect(), plot::metricsOf(fonts(), this), m_texts);
    return *m_geometry;
}

void ProgressChart::paintPicture(QPainter &painter)
{
    paintProgressChart(painter, geometry(), m_colors, fonts());
}

void ProgressChart::paintEmphasis(QPainter &painter)
{
    Emphasis emphasis = {m_note, m_pointed};
    if (!emphasis.day && hasFocus())
        emphasis.day = m_day;
    progress::paintEmphasis(painter, geometry(), m_colors, fonts(), emphasis);
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
