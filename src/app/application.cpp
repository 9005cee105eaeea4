#include "app/application.h"

#include "app/darkcolors.h"
#include "ui/attempt.h"
#include "ui/icons.h"
#include "ui/screenfit.h"

Application::Application(int &argc, char **argv, Messages &messages)
    : QApplication(argc, argv)
    , m_messages(messages)
{
    setWindowIcon(programIcon()); // of messages and dialogs before the main window, too
    installEventFilter(new ScreenFit(this));
    chooseStyle();
}

bool Application::event(QEvent *event)
{
    const bool isHandled = QApplication::event(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        chooseStyle();
    return isHandled;
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        tellFailure(activeWindow(), m_messages, error);
    }
    return true;
}
