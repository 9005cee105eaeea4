#include "app/application.h"

#include "ui/attempt.h"

Application::Application(int &argc, char **argv, Messages &messages)
    : QApplication(argc, argv)
    , m_messages(messages)
{
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
