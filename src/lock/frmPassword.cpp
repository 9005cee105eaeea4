#include "lock/frmPassword.h"

#include "lock/changepassword.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/fieldmessages.h"
#include "ui/messages.h"
#include "ui/passwordbox.h"

#include <QApplication>
#include <QCheckBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>

using namespace Qt::Literals;

namespace {

constexpr int textCharacters = 56;

} // namespace

frmPassword::frmPassword(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, u"frmPassword"_s, tr("Password"), parent)
    , m_current(session.data().Con.password())
{
    if (!m_current.isEmpty()) {
        txtCurrent = makeBox(u"txtCurrent"_s, tr("Current Password"));
        makeSecret(*txtCurrent);
        chkRemove = new QCheckBox(tr("&Take the password away"), this);
        chkRemove->setObjectName(u"chkRemove"_s);
    }
    txtNew = makeBox(u"txtNew"_s, tr("New Password"));
    txtRepeated = makeBox(u"txtRepeated"_s, tr("Repeated Password"));
    for (QLineEdit *box : {txtNew, txtRepeated}) {
        makeSecret(*box);
        if (chkRemove)
            connect(chkRemove, &QCheckBox::toggled, box, &QWidget::setDisabled);
    }
    setForm(makeForm());
    makeChecks();
    focusFirstField();
}

QLayout *frmPassword::makeForm()
{
    const auto makeText = [this](const QString &words) {
        auto *text = new QLabel(words, this);
        text->setWordWrap(true);
        text->setMinimumWidth(textCharacters * fontMetrics().averageCharWidth());
        return text;
    };
    auto *form = new QGridLayout;
    int row = 0;
    const auto addField = [&](const QString &caption, QLineEdit *box) {
        form->addWidget(makeLabel(caption, box), row, 0);
        form->addWidget(box, row++, 1);
    };
    const auto addLine = [&](QWidget *line) { form->addWidget(line, row++, 0, 1, 2); };
    addLine(makeText(txtCurrent ? tr("The journal is locked with a password of your own.")
                                : tr("The journal has no password of your own: everyone who can "
                                     "read its file can open it.")));
    QList<QLineEdit *> boxes{txtNew, txtRepeated};
    if (txtCurrent) {
        addField(tr("C&urrent password"), txtCurrent);
        addLine(chkRemove);
        boxes.prepend(txtCurrent);
    }
    addField(tr("&New password"), txtNew);
    addField(tr("&Repeat it"), txtRepeated);
    form->addWidget(makeShowBox(this, boxes), row++, 1);
    addLine(
        makeText(tr("A forgotten password can't be recovered: nobody can open the journal then. "
                    "Backups made before stay as they are, and open with the password that the "
                    "journal had then, or with none.")));
    form->setColumnStretch(1, 1);
    return form;
}

bool frmPassword::isRemoving() const
{
    return chkRemove && chkRemove->isChecked();
}

void frmPassword::makeChecks()
{
    const auto unlessRemoving = [this](QLineEdit *box, const QString &message, auto passes) {
        addCheck(box, message, [this, passes] { return isRemoving() || passes(); });
    };
    if (txtCurrent) {
        checkSpecified(txtCurrent, tr("Current Password"));
        addCheck(txtCurrent,
                 tr("This password does not open %1")
                     .arg(QFileInfo(session().data().Con.path()).fileName()),
                 [this] { return passwordIn(*txtCurrent) == m_current; });
    }
    unlessRemoving(txtNew, shouldBeSpecified(tr("New Password")),
                   [this] { return !txtNew->text().trimmed().isEmpty(); });
    unlessRemoving(txtNew, tr("The New Password can't begin with raw: or with x'"),
                   [this] { return !passwordIn(*txtNew).isTakenForKey(); });
    unlessRemoving(txtRepeated, tr("The two passwords are not the same"),
                   [this] { return passwordIn(*txtNew) == passwordIn(*txtRepeated); });
}

void frmPassword::accept()
{
    if (!Validate())
        return;
    const FilePassword password = isRemoving() ? FilePassword() : passwordIn(*txtNew);
    const auto change = [&] {
        QApplication::setOverrideCursor(Qt::WaitCursor);
        const auto restoreCursor = qScopeGuard([] { QApplication::restoreOverrideCursor(); });
        changePassword(session().data().Con, password);
    };
    if (!attempt(this, messages(), change, tr("The password can't be changed")))
        return;
    FormDialog::accept(); // first, or the focus would be given back to a window that goes, too
    messages().information(parentWidget(),
                           password.isEmpty()
                               ? tr("The journal has no password any more.")
                               : tr("The journal is locked with its new password, which will be "
                                    "asked for at the next start."));
}
