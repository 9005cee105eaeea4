#include "ui/screenfit.h"

#include <QEvent>
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

// Where the window manager or the toolkit, not knowing the frame, has put it partly out of sight.
void moveInside(QWidget &window)
{
    if (window.isMaximized())
        return;
    const QRect screen = screenOf(window).availableGeometry();
    const QRect frame = window.geometry().marginsAdded(frameOf(window));
    QPoint corner(qMin(frame.left(), screen.right() - frame.width() + 1),
                  qMin(frame.top(), screen.bottom() - frame.height() + 1));
    corner = {qMax(corner.x(), screen.left()), qMax(corner.y(), screen.top())};
    if (corner != frame.topLeft())
        window.move(window.pos() + corner - frame.topLeft());
}

} // namespace

QScreen &screenOf(const QWidget &window)
{
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
