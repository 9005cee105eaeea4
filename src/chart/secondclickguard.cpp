#include "chart/secondclickguard.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QStyleHints>

namespace daychart {

SecondClickGuard::SecondClickGuard(QPointF place)
    : m_place(place)
{
    m_sinceFirst.start();
    QCoreApplication::instance()->installEventFilter(this);
}

bool SecondClickGuard::isSecondClick(const QMouseEvent &event) const
{
    const QStyleHints &hints = *QGuiApplication::styleHints();
    return m_sinceFirst.elapsed() < hints.mouseDoubleClickInterval() &&
           (event.globalPosition() - m_place).manhattanLength() <= hints.mouseDoubleClickDistance();
}

bool SecondClickGuard::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        m_isPressed = isSecondClick(static_cast<QMouseEvent &>(*event));
        return m_isPressed;
    case QEvent::MouseButtonRelease:
        return std::exchange(m_isPressed, false) ||
               isSecondClick(static_cast<QMouseEvent &>(*event));
    default:
        return false;
    }
}

} // namespace daychart
