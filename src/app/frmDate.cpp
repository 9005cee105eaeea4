#include "app/frmDate.h"

#include "help/helpkey.h"
#include "session/session.h"
#include "ui/pickers.h"

#include <QDateEdit>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

frmDate::frmDate(Session &session, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
{
    setObjectName(QStringLiteral("frmDate"));
    setWindowTitle(tr("Set Current Date"));
    if (parent)
        setWindowIcon(parent->windowIcon());
    dtpDate->setAccessibleName(tr("Current date"));
    dtpDate->setDate(session.currentDate());

    auto *buttons = new QDialogButtonBox;
    const auto add = [&](const QString &caption, const QString &name, auto role) {
        auto *button = buttons->addButton(caption, role);
        button->setObjectName(name);
        return button;
    };
    add(tr("&OK"), QStringLiteral("btnOK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    add(tr("&Cancel"), QStringLiteral("btnCancel"), QDialogButtonBox::RejectRole);
    add(tr("&Help"), QStringLiteral("btnHelp"), QDialogButtonBox::HelpRole);
    connect(buttons, &QDialogButtonBox::accepted, this, &frmDate::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(buttons, &QDialogButtonBox::helpRequested, this, [this] { sendHelpKey(this); });

    auto *form = new QFormLayout;
    form->addRow(tr("&Date"), dtpDate);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
}

void frmDate::accept()
{
    m_session.setCurrentDate(dtpDate->date());
    if (m_session.currentDate() == dtpDate->date()) // the main window has told why it is not
        QDialog::accept();
}
