#include "ui/frmUnlock.h"

#include "ui/elidedlabel.h"
#include "ui/messages.h"
#include "ui/passwordbox.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>

using namespace Qt::Literals;

namespace {

constexpr int pathCharacters = 48;

} // namespace

frmUnlock::frmUnlock(Messages &messages, const QString &path, Trial opens, QWidget *parent)
    : FormDialog(messages, u"frmUnlock"_s, tr("Locked Journal"), parent)
    , m_fileName(QFileInfo(path).fileName())
    , m_opens(std::move(opens))
    , txtPassword(makeBox(u"txtPassword"_s, tr("Password")))
{
    makeSecret(*txtPassword);
    auto *file = new ElidedLabel(this, Qt::ElideMiddle);
    file->setObjectName(u"lblFile"_s);
    file->setText(QDir::toNativeSeparators(path));
    file->setMinimumWidth(pathCharacters * fontMetrics().averageCharWidth());
    auto *form = new QGridLayout;
    form->addWidget(new QLabel(tr("%1 is locked with a password.").arg(m_fileName), this), 0, 0, 1,
                    2);
    form->addWidget(file, 1, 0, 1, 2);
    form->addWidget(makeLabel(tr("&Password"), txtPassword), 2, 0);
    form->addWidget(txtPassword, 2, 1);
    form->addWidget(makeShowBox(this, {txtPassword}), 3, 1);
    form->setColumnStretch(1, 1);
    setForm(form);
    checkSpecified(txtPassword, tr("Password"));
    focusFirstField();
}

void frmUnlock::accept()
{
    if (!Validate())
        return;
    bool isOpen = false;
    {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        isOpen = m_opens(passwordIn(*txtPassword));
    }
    if (isOpen)
        FormDialog::accept();
    else
        refuse(txtPassword, tr("This password does not open %1").arg(m_fileName));
}
