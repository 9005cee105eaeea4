#include "help/aboutbox.h"

#include <QCoreApplication>
#include <QMessageBox>

void showAboutBox(QWidget *parent)
{
    const auto tr = [](const char *text) { return QCoreApplication::translate("AboutBox", text); };
    QMessageBox box(parent);
    box.setObjectName(QStringLiteral("frmAbout"));
    box.setWindowTitle(tr("About the Program"));
    box.setIconPixmap(parent->windowIcon().pixmap(64));
    box.setText(QStringLiteral("<h3>Corvana %1</h3>").arg(QCoreApplication::applicationVersion()));
    box.setInformativeText(tr("A journal of what you eat, do and weigh.\n\n"
                              "Your journal is the file Corvana.mdb in the program folder. "
                              "Copy that folder to keep it safe.\n\n"
                              "Free software under the MIT licence."));
    box.exec();
}
