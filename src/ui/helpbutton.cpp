#include "ui/helpbutton.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QPushButton>

void sendHelpKey(QWidget *window)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QCoreApplication::sendEvent(window, &press);
}

QPushButton *makeHelpButton(QWidget *parent)
{
    auto *button = new QPushButton(QCoreApplication::translate("HelpButton", "&Help"), parent);
    button->setObjectName(QStringLiteral("btnHelp"));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button,
                     [button] { sendHelpKey(button->window()); });
    return button;
}
