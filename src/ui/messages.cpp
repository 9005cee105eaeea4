#include "ui/messages.h"

#include "session/excerpt.h"
#include "ui/plaintextbox.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace {

// Message texts join their lines with carriage return and line feed; a label would show the first
// as a blank.
QString withPlainLineFeeds(QString text)
{
    return text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

int runBox(QWidget *parent, QMessageBox::Icon icon, const QString &title, const QString &text,
           const QString &cause, QMessageBox::StandardButtons buttons,
           QMessageBox::StandardButton defaultButton)
{
    QMessageBox box(icon, title, withPlainLineFeeds(text), buttons, parent);
    box.setTextFormat(Qt::PlainText); // a note's text may hold what looks like markup
    box.setInformativeText(cause);
    box.setDefaultButton(defaultButton);
    return box.exec();
}

/// Whether a message box of this text, which may quote a long note or a long word, would leave no
/// room on the screen for its button.
bool isTooLarge(const QString &text)
{
    constexpr qsizetype moreThanAScreen = 10'000; // not to be measured, which takes long
    if (text.size() > moreThanAScreen)
        return true;
    const QFontMetrics metrics(QApplication::font());
    const QRect width(0, 0, 60 * metrics.averageCharWidth(), 0);
    const QSize size = metrics.boundingRect(width, Qt::TextWordWrap, text).size();
    const QSize screen = QApplication::primaryScreen()->availableSize();
    return size.height() > screen.height() / 2 || size.width() > screen.width() * 3 / 4;
}

/// A message box, but for its text, which scrolls.
void runScrolledBox(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                    const QString &text)
{
    constexpr qsizetype mostSaid = 2000; // characters that a screen reader says at once
    QDialog box(parent);
    box.setObjectName(QStringLiteral("message"));
    box.setWindowTitle(title);
    auto *picture = new QLabel(&box);
    picture->setPixmap(QMessageBox(icon, {}, {}).iconPixmap());
    auto *quoted = new PlainTextBox(&box);
    quoted->setText(withPlainLineFeeds(text));
    quoted->setObjectName(QStringLiteral("text"));
    quoted->setReadOnly(true);
    quoted->setTabChangesFocus(true);
    quoted->setAccessibleName(title);
    box.setAccessibleDescription(excerptOf(withPlainLineFeeds(text), mostSaid));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, &box);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &box, &QDialog::accept);
    auto *grid = new QGridLayout(&box);
    grid->addWidget(picture, 0, 0, Qt::AlignTop);
    grid->addWidget(quoted, 0, 1);
    grid->addWidget(buttons, 1, 0, 1, 2);
    box.resize(70 * box.fontMetrics().averageCharWidth(), 20 * box.fontMetrics().height());
    buttons->button(QDialogButtonBox::Ok)->setFocus();
    box.exec();
}

} // namespace

void Messages::error(QWidget *parent, const QString &text, const QString &cause)
{
    show(parent, Icon::Exclamation, QCoreApplication::translate("Messages", "Error"), text, cause);
}

void Messages::information(QWidget *parent, const QString &text)
{
    show(parent, Icon::Information, QCoreApplication::applicationName(), text);
}

void MessageBoxes::show(QWidget *parent, Icon icon, const QString &title, const QString &text,
                        const QString &cause)
{
    const auto boxIcon = icon == Icon::Information ? QMessageBox::Information
                         : icon == Icon::Critical  ? QMessageBox::Critical
                                                   : QMessageBox::Warning;
    if (isTooLarge(text))
        runScrolledBox(parent, boxIcon, title, cause.isEmpty() ? text : text + u'\n' + cause);
    else
        runBox(parent, boxIcon, title, text, cause, QMessageBox::Ok, QMessageBox::Ok);
}

bool MessageBoxes::ask(QWidget *parent, const QString &title, const QString &text)
{
    return runBox(parent, QMessageBox::Question, title, text, {},
                  QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}
