#include "ui/messages.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace {

// Message texts join their lines with carriage return and line feed; a label would show the first
// as a blank.
QString withPlainLineFeeds(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

int runBox(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
           QMessageBox::StandardButtons buttons, QMessageBox::StandardButton defaultButton)
{
    QMessageBox box(icon, title, withPlainLineFeeds(text), buttons, parent);
    box.setTextFormat(Qt::PlainText); // a note's text may hold what looks like markup
    box.setDefaultButton(defaultButton);
    return box.exec();
}

} // namespace

void Messages::error(QWidget *parent, const QString &text)
{
    show(parent, Icon::Exclamation, QCoreApplication::translate("Messages", "Error"), text);
}

void Messages::information(QWidget *parent, const QString &text)
{
    show(parent, Icon::Information, QCoreApplication::applicationName(), text);
}

void MessageBoxes::show(QWidget *parent, Icon icon, const QString &title, const QString &text)
{
    const auto boxIcon = icon == Icon::Information ? QMessageBox::Information
                         : icon == Icon::Critical  ? QMessageBox::Critical
                                                   : QMessageBox::Warning;
    runBox(parent, boxIcon, title, text, QMessageBox::Ok, QMessageBox::Ok);
}

bool MessageBoxes::ask(QWidget *parent, const QString &title, const QString &text)
{
    return runBox(parent, QMessageBox::Question, title, text, QMessageBox::Yes | QMessageBox::No,
                  QMessageBox::No) == QMessageBox::Yes;
}
