#include "ui/recordeditor.h"

#include "help/helpkey.h"
#include "session/session.h"
#include "ui/messages.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

RecordEditor::RecordEditor(Session &session, Messages &messages, Recordset &source,
                           const QString &name, const QString &caption, QWidget *parent)
    : QDialog(parent)
    , m_session(session)
    , m_messages(messages)
    , m_source(source)
{
    setObjectName(name);
    setWindowTitle(caption);
}

bool RecordEditor::run(qint32 recordId)
{
    m_recordId = recordId;
    m_stored = false;
    load();
    focusFirstField();
    exec();
    m_source.close();
    return m_stored;
}

void RecordEditor::load()
{
    if (appendsRecord())
        setWindowTitle(tr("%1 - New").arg(windowTitle()));
    openSource();
    m_loading = true;
    Populate();
    m_loading = false;
}

// Left to itself, a dialog would give the focus to its default button.
void RecordEditor::focusFirstField()
{
    QWidget *first = nextInFocusChain();
    while (first != this && (first->focusPolicy() & Qt::TabFocus) == 0)
        first = first->nextInFocusChain();
    first->setFocus();
}

void RecordEditor::openSource()
{
    m_source.reopen({Value(m_recordId)});
}

bool RecordEditor::Validate()
{
    for (const FieldCheck &check : m_checks) {
        if (check.passes())
            continue;
        m_messages.error(this, check.message);
        check.field->setFocus();
        if (auto *box = qobject_cast<QLineEdit *>(check.field))
            box->selectAll();
        return false;
    }
    return true;
}

void RecordEditor::accept()
{
    if (!Validate() || !store())
        return;
    m_stored = true;
    recordStored();
}

bool RecordEditor::store()
{
    try {
        if (appendsRecord())
            m_source.addNew();
        Gather();
        if (!confirmStore()) {
            m_source.cancelUpdate();
            return false;
        }
        m_source.update();
        return true;
    } catch (const std::runtime_error &) {
        // Discarded before anything is said, so that the next OK begins anew.
        m_source.cancelUpdate();
        m_messages.error(this, refusedStoreMessage());
        return false;
    }
}

void RecordEditor::recordStored()
{
    QDialog::accept();
}

QString RecordEditor::refusedStoreMessage() const
{
    return tr("Can't store this record in database. Please check whether all data are valid");
}

void RecordEditor::addCheck(QWidget *field, const QString &message, std::function<bool()> passes)
{
    m_checks.push_back({field, message, std::move(passes)});
}

void RecordEditor::checkSpecified(QLineEdit *box, const QString &message)
{
    addCheck(box, message, [box] { return !box->text().trimmed().isEmpty(); });
}

void RecordEditor::checkNumeric(QLineEdit *box, const QString &message)
{
    addCheck(box, message, [this, box] { return m_session.text().isNumeric(box->text()); });
}

void RecordEditor::checkNumericOrEmpty(QLineEdit *box, const QString &message)
{
    addCheck(box, message, [this, box] {
        return box->text().isEmpty() || m_session.text().isNumeric(box->text());
    });
}

QLineEdit *RecordEditor::makeBox(const QString &name, const QString &accessibleName)
{
    auto *box = new QLineEdit(this);
    box->setObjectName(name);
    box->setAccessibleName(accessibleName);
    return box;
}

QLabel *RecordEditor::makeLabel(const QString &caption, QWidget *field)
{
    auto *label = new QLabel(caption, this);
    label->setBuddy(field);
    return label;
}

void RecordEditor::setForm(QLayout *form)
{
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addStretch();
    // Made after the fields, and so behind them on Tab.
    layout->addLayout(makeButtons());
}

QLayout *RecordEditor::makeButtons()
{
    btnOK = new QPushButton(tr("&OK"), this);
    btnOK->setObjectName(QStringLiteral("btnOK"));
    btnOK->setDefault(true);
    btnCancel = new QPushButton(tr("&Cancel"), this);
    btnCancel->setObjectName(QStringLiteral("btnCancel"));
    btnHelp = new QPushButton(tr("&Help"), this);
    btnHelp->setObjectName(QStringLiteral("btnHelp"));
    btnHelp->setAutoDefault(false);
    connect(btnOK, &QPushButton::clicked, this, &RecordEditor::accept);
    connect(btnCancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(btnHelp, &QPushButton::clicked, this, [this] { sendHelpKey(this); });

    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(btnOK);
    buttons->addWidget(btnCancel);
    buttons->addWidget(btnHelp);
    return buttons;
}
