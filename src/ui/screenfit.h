// Windows on the screens that there are.
#pragma once

#include <QObject>
#include <QRect>

class QScreen;
class QWidget;

/// What a screen leaves for the inside of a window: without panels, title and frame.
QSize roomFor(const QWidget &window, const QScreen &screen);
/// The screen on which a window opens: where it has been put, else its parent's.
QScreen &screenOf(const QWidget &window);

/// Makes a window no larger than its screen has room for. It is for the window's contents to get
/// by with that: what must not shrink scrolls.
void fitToScreen(QWidget &window);

/// To be installed on the application: every window, message boxes and file dialogs included,
/// opens within its screen.
class ScreenFit : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override;
};
