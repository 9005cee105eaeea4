#include "help/helpkey.h"

#include "help/helpviewer.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

HelpKeyFilter::HelpKeyFilter(const QString &helpFile, QObject *parent)
    : QObject(parent)
    , m_helpFile(helpFile)
{
}

bool HelpKeyFilter::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType() ||
        static_cast<QKeyEvent *>(event)->key() != Qt::Key_F1)
        return false;
    QWidget *window = static_cast<QWidget *>(watched)->window();
    if (window->windowType() == Qt::Popup) {
        // A menu, a list or a calendar, open in the active window: the help would lie below it.
        window = QApplication::activeWindow();
        QWidget *popup = QApplication::activePopupWidget();
        while (popup && popup->close())
            popup = QApplication::activePopupWidget();
        if (!window)
            return true;
    }
    if (!qobject_cast<HelpViewer *>(window))
        showHelp(window, m_helpFile, window->objectName());
    return true;
}
