#include "help/companion.h"

#include "help/placebeside.h"

#include <QApplication>
#include <QEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

Companion::Companion(QWidget &window)
    : QObject(&window)
    , m_window(window)
{
    window.setAttribute(Qt::WA_QuitOnClose, false);
    window.installEventFilter(this);
}

void Companion::openBeside(QWidget &other)
{
    keepTo(other);
    if (m_window.isVisible())
        moveBeside();
    else
        m_window.setGeometry(QRect(other.geometry().topRight(), m_window.size()));
    m_window.show();
    m_window.raise();
    m_window.activateWindow();
    keepTo(other); // now that the window system knows the window
}

// To the window system it belongs to its parent, as the other does, so that neither lies above the
// other for good. To Qt it belongs to the other itself: a modal one lets its own windows alone be
// used.
void Companion::keepTo(QWidget &other)
{
    if (m_other)
        m_other->removeEventFilter(this);
    m_other = &other;
    other.installEventFilter(this);
    if (QWindow *handle = m_window.windowHandle())
        handle->setTransientParent(other.windowHandle());
}

void Companion::keepToTop()
{
    QWidget *modal = QApplication::activeModalWidget();
    QWidget *parent = m_window.parentWidget();
    if (!m_window.isVisible() || modal == &m_window)
        return;
    if (!parent || !parent->isVisible())
        m_window.close();
    else
        keepTo(modal ? *modal : *parent);
}

void Companion::keepToTopSoon()
{
    QMetaObject::invokeMethod(this, &Companion::keepToTop, Qt::QueuedConnection);
}

void Companion::moveBeside()
{
    const QWidget *beside = m_other;
    if (!beside || m_window.isMaximized())
        return;
    // Its own frame, which is not known before it is shown, is taken to be like the other's.
    const QRect other = beside->frameGeometry();
    const QPoint frame = beside->geometry().topLeft() - other.topLeft();
    const QRect now(m_window.geometry().topLeft() - frame,
                    m_window.size() + other.size() - beside->size());
    const QScreen *screen = QGuiApplication::screenAt(now.center());
    if (!screen || now.intersects(other))
        screen = beside->screen();
    const QPoint place = placeBeside(other, now, screen->availableGeometry());
    if (place != now.topLeft())
        m_window.setGeometry(QRect(place + frame, m_window.size()));
}

void Companion::giveFocusBack()
{
    if (QWidget *other = m_other; other && other->isVisible())
        other->activateWindow();
}

bool Companion::eventFilter(QObject *watched, QEvent *event)
{
    const bool isOwn = watched == &m_window;
    const QEvent::Type type = event->type();
    if (isOwn && type == QEvent::WindowBlocked)
        keepToTopSoon(); // the modal window that is opening is not yet the active one
    if (event->spontaneous() || (type != QEvent::Show && type != QEvent::Hide))
        return false;
    if (isOwn && type == QEvent::Show)
        moveBeside(); // where it was closed last may be where the other is now
    else if (isOwn)
        giveFocusBack();
    else if (type == QEvent::Hide)
        keepToTopSoon(); // the other may be gone by then
    return false;
}
