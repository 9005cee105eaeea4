#include "ui/recordeditor.h"

#include "data/storeerror.h"
#include "session/session.h"
#include "ui/messages.h"

#include <QLineEdit>

RecordEditor::RecordEditor(Session &session, Messages &messages, Recordset &source,
                           const QString &name, const QString &caption, QWidget *parent)
    : FormDialog(session, messages, name, caption, parent)
    , m_source(source)
{
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
    // Of a text too long for its box, the beginning tells more than the end.
    for (QLineEdit *box : findChildren<QLineEdit *>())
        box->home(false);
    m_loading = false;
}

void RecordEditor::openSource()
{
    m_source.reopen({Value(m_recordId)});
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
        else if (m_source.isEof())
            throw StoreError(StoreError::Kind::Gone, "the record was deleted by another program");
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
        messages().error(this, refusedStoreMessage());
        return false;
    }
}

void RecordEditor::recordStored()
{
    FormDialog::accept();
}

QString RecordEditor::refusedStoreMessage() const
{
    return tr("Can't store this record in database. Please check whether all data are valid");
}
