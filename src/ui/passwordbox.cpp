#include "ui/passwordbox.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLineEdit>

void makeSecret(QLineEdit &box)
{
    constexpr int characters = 28;
    box.setEchoMode(QLineEdit::Password);
    box.setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                            Qt::ImhNoAutoUppercase);
    box.setMaxLength(FilePassword::longest);
    box.setMinimumWidth(characters * box.fontMetrics().averageCharWidth());
}

QCheckBox *makeShowBox(QWidget *parent, const QList<QLineEdit *> &boxes)
{
    auto *show =
        new QCheckBox(QCoreApplication::translate("PasswordBox", "&Show what is typed"), parent);
    show->setObjectName(QStringLiteral("chkShow"));
    QObject::connect(show, &QCheckBox::toggled, parent, [boxes](bool on) {
        for (QLineEdit *box : boxes)
            box->setEchoMode(on ? QLineEdit::Normal : QLineEdit::Password);
    });
    return show;
}

FilePassword passwordIn(const QLineEdit &box)
{
    return FilePassword(box.text());
}
