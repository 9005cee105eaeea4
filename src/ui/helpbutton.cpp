#include "ui/helpbutton.h"

#include "help/helpkey.h"

#include <QCoreApplication>
#include <QPushButton>

QPushButton *makeHelpButton(QWidget *parent)
{
    auto *button = new QPushButton(QCoreApplication::translate("HelpButton", "&Help"), parent);
    button->setObjectName(QStringLiteral("btnHelp"));
    button->setAutoDefault(false);
    QObject::connect(button, &QPushButton::clicked, button,
                     [button] { sendHelpKey(button->window()); });
    return button;
}
