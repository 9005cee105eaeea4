#include "ui/screenfit.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QTimer>
#include <QWidget>

namespace {

// The window manager draws it, and tells its size only once the window is shown.
QMargins frameOf(const QWidget &window)
{
    const QRect inside = window.geometry();
    const QRect outside = window.frameGeometry();
    const int side = window.fontMetrics().averageCharWidth();
    return {qMax(side, inside.left() - outside.left()),
            qMax(2 * window.fontMetrics().height(), inside.top() - outside.top()),
            qMax(side, outside.right() - inside.right()),
            qMax(side, outside.bottom() - inside.bottom())};
}

// The toolkit does not know the frame, and the user's screen may have become smaller.
void moveInside(QWidget &window)
{
    const QRect screen = screenOf(window).availableGeometry();
    const QRect inside = window.geometry();
    // What leaves room for a low title stays where the user has put it.
    const QRect belowTitle = screen.adjusted(0, window.fontMetrics().height(), 0, 0);
    if (window.isMaximized() || belowTitle.contains(inside))
        return;
    const QRect room = screen.marginsRemoved(frameOf(window));
    const QPoint last = room.bottomRight() - QPoint(inside.width() - 1, inside.height() - 1);
    const QPoint corner(qMax(room.left(), qMin(inside.left(), last.x())),
                        qMax(room.top(), qMin(inside.top(), last.y())));
    window.move(window.pos() + corner - inside.topLeft());
}

} // namespace

QScreen &screenOf(const QWidget &window)
{
    if (window.testAttribute(Qt::WA_Moved)) {
        if (QScreen *screen = QGuiApplication::screenAt(window.geometry().center()))
            return *screen;
    }
    const QWidget *parent = window.parentWidget();
    return *(parent ? parent->screen() : window.screen());
}

QSize roomFor(const QWidget &window, const QScreen &screen)
{
    return screen.availableGeometry().marginsRemoved(frameOf(window)).size();
}

void fitToScreen(QWidget &window)
{
    const QSize size = window.size().boundedTo(roomFor(window, screenOf(window)));
    if (size != window.size())
        window.resize(size);
}

bool ScreenFit::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show || event->spontaneous() || !watched->isWidgetType())
        return false;
    auto *window = static_cast<QWidget *>(watched);
    const Qt::WindowType type = window->windowType();
    if (!window->isWindow() || (type != Qt::Window && type != Qt::Dialog))
        return false;
    fitToScreen(*window);
    // Other windows are placed by the window manager.
    if (type == Qt::Dialog || window->testAttribute(Qt::WA_Moved))
        QTimer::singleShot(0, window, [window] { moveInside(*window); });
    return false;
}
