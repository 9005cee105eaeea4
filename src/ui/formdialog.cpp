#include "ui/formdialog.h"

#include "session/session.h"
#include "ui/attempt.h"
#include "ui/fieldmessages.h"
#include "ui/formscroll.h"
#include "ui/helpbutton.h"
#include "ui/messages.h"
#include "ui/pickers.h"
#include "ui/screenfit.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShowEvent>
#include <QVBoxLayout>

FormDialog::FormDialog(Session &session, Messages &messages, const QString &name,
                       const QString &caption, QWidget *parent)
    : FormDialog(messages, name, caption, parent)
{
    m_session = &session;
}

FormDialog::FormDialog(Messages &messages, const QString &name, const QString &caption,
                       QWidget *parent)
    : QDialog(parent)
    , m_messages(messages)
{
    setObjectName(name);
    setWindowTitle(caption);
}

void FormDialog::focusFirstField()
{
    QWidget *first = nextInFocusChain();
    while (first != this && (first->focusPolicy() & Qt::TabFocus) == 0)
        first = first->nextInFocusChain();
    first->setFocus();
}

bool FormDialog::Validate()
{
    for (const FieldCheck &check : m_checks) {
        if (check.passes())
            continue;
        refuse(check.field, check.message);
        return false;
    }
    return true;
}

void FormDialog::refuse(QWidget *field, const QString &message)
{
    m_messages.error(this, message);
    field->setFocus();
    if (auto *box = qobject_cast<QLineEdit *>(field))
        box->selectAll();
    if (auto *picker = qobject_cast<QDateTimeEdit *>(field))
        selectForTyping(*picker);
}

void FormDialog::addCheck(QWidget *field, const QString &message, std::function<bool()> passes)
{
    m_checks.push_back({field, message, std::move(passes)});
}

void FormDialog::checkNumber(QLineEdit *box, const QString &message)
{
    addCheck(box, message, [this, box] { return session().text().isNumeric(box->text()); });
}

void FormDialog::checkSpecified(QLineEdit *box, const QString &field)
{
    addCheck(box, shouldBeSpecified(field), [box] { return !box->text().trimmed().isEmpty(); });
}

void FormDialog::checkNumeric(QLineEdit *box, const QString &field)
{
    checkNumber(box, containsIllegalData(field));
}

void FormDialog::checkNumericOrEmpty(QLineEdit *box, const QString &field)
{
    addCheck(box, containsIllegalData(field), [this, box] {
        return box->text().isEmpty() || session().text().isNumeric(box->text());
    });
}

void FormDialog::checkTyped(QDateTimeEdit *picker, const QString &field)
{
    addCheck(picker, containsIllegalData(field), [picker] { return takeTyped(*picker); });
}

QLineEdit *FormDialog::makeBox(const QString &name, const QString &accessibleName)
{
    auto *box = new QLineEdit(this);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    return box;
}

QPushButton *FormDialog::makeNewButton(const QString &name, const QString &caption)
{
    auto *button = new QPushButton(caption, this);
    button->setObjectName(name);
    button->setToolTip(tr("New record"));
    button->setAutoDefault(false);
    return button;
}

QLabel *FormDialog::makeLabel(const QString &caption, QWidget *field)
{
    auto *label = new QLabel(caption, this);
    label->setBuddy(field);
    return label;
}

void FormDialog::setForm(QLayout *form)
{
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    // Takes the room that a taller window leaves, but only what the form has no use for.
    layout->addItem(new QSpacerItem(0, 0, QSizePolicy::Minimum, QSizePolicy::Preferred));
    // Made after the fields, and so behind them on Tab.
    layout->addLayout(makeButtons());
}

QSize FormDialog::sizeHint() const
{
    // With the buttons of the title bar, which the window manager draws in a font of its own.
    const QFontMetrics metrics = fontMetrics();
    const int title = metrics.horizontalAdvance(windowTitle()) * 5 / 4 + 6 * metrics.height();
    return QDialog::sizeHint().expandedTo({title, 0});
}

void FormDialog::showEvent(QShowEvent *event)
{
    const QSize room = roomFor(*this, screenOf(*this));
    const QSize least = minimumSizeHint();
    if (!event->spontaneous() && (least.width() > room.width() || least.height() > room.height())) {
        letFormScroll();
        resize(size().expandedTo(sizeHint()));
        fitToScreen(*this);
    }
    QDialog::showEvent(event);
}

void FormDialog::letFormScroll()
{
    auto *rows = static_cast<QVBoxLayout *>(layout());
    QLayout *form = rows->itemAt(0)->layout();
    if (!form)
        return; // it scrolls already
    rows->takeAt(0);
    form->setParent(nullptr);
    form->setContentsMargins({});
    auto *content = new QWidget;
    content->setLayout(form);
    rows->insertWidget(0, new FormScroll(content, this), 1);
    rows->activate();
}

QLayout *FormDialog::makeButtons()
{
    btnOK = new QPushButton(tr("&OK"), this);
    btnOK->setObjectName(QStringLiteral("btnOK"));
    btnOK->setDefault(true);
    btnCancel = new QPushButton(tr("&Cancel"), this);
    btnCancel->setObjectName(QStringLiteral("btnCancel"));
    btnHelp = makeHelpButton(this);
    connect(btnOK, &QPushButton::clicked, this,
            [this] { attempt(this, m_messages, [this] { accept(); }); });
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnOK);
    buttons->addWidget(btnCancel);
    buttons->addWidget(btnHelp);
    return buttons;
}
