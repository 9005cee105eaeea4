#include "app/application.h"

#include "ui/icons.h"
#include "ui/messages.h"
#include "ui/screenfit.h"

Application::Application(int &argc, char **argv, Messages &messages)
    : QApplication(argc, argv)
    , m_messages(messages)
{
    setWindowIcon(programIcon()); // of messages and dialogs before the main window, too
    installEventFilter(new ScreenFit(this));
}

bool Application::notify(QObject *receiver, QEvent *event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception &error) {
        m_messages.error(activeWindow(), tr("The last action could not be carried out: %1.")
                                             .arg(QString::fromUtf8(error.what())));
    }
    return true;
}
