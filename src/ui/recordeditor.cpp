#include "ui/recordeditor.h"

#include "data/identifiers.h"
#include "data/storeerror.h"
#include "session/session.h"
#include "ui/actionrecording.h"
#include "ui/attempt.h"
#include "ui/messages.h"

#include <QLineEdit>
#include <QScopeGuard>

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
    const auto close = qScopeGuard([this] { m_source.close(); });
    load();
    focusFirstField();
    exec();
    return m_stored;
}

void RecordEditor::load()
{
    if (appendsRecord())
        setWindowTitle(tr("%1 - New").arg(windowTitle()));
    openSource();
    if (!appendsRecord() && m_source.isEof()) {
        session().announce({{&table()}, StoredChange::Kind::Removed});
        throw StoreError(StoreError::Kind::Gone, "the record has been deleted");
    }
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
    using enum StoredChange::Kind;
    const auto change = appendsRecord() ? Added : Changed;
    if (!Validate() || !store())
        return;
    m_stored = true;
    m_storedId = m_source.integer(table().key());
    recordStored();
    session().announce({{&table()}, change});
}

bool RecordEditor::store()
{
    const Recordset::Rows before = m_source.rows();
    try {
        if (appendsRecord()) {
            m_source.addNew();
            if (const auto id = newIdentifier(session().data(), table()))
                m_source.set(table().key(), Value(int(*id)));
        }
        Gather();
        if (!confirmStore()) {
            m_source.cancelUpdate();
            return false;
        }
        runRecorded();
        return true;
    } catch (const std::exception &error) {
        // Put back before anything is said, so that the next OK begins anew.
        m_source.restore(before);
        refuseStore(error);
        return false;
    }
}

void RecordEditor::runRecorded()
{
    using enum ActionRecording::Action;
    ActionRecording recording(session(), appendsRecord() ? Adding : Changing, table());
    runAsOne(session().data().Con, storeSteps(), refusal());
    recording.name(m_source.integer(table().key()));
}

std::vector<Step> RecordEditor::storeSteps()
{
    std::vector<Step> steps;
    if (dependsOnParameters())
        steps.emplace_back([this] { session().requireCurrentParameters(); });
    steps.emplace_back([this] { m_source.update(); });
    return steps;
}

void RecordEditor::refuseStore(const std::exception &error)
{
    QString cause = causeOf(error);
    const auto *refusal = dynamic_cast<const StoreError *>(&error);
    if (refusal && refusal->kind() == StoreError::Kind::NameTaken)
        cause = takenNameCause();
    if (refusal && refusal->kind() == StoreError::Kind::ParametersChanged)
        attempt(this, messages(), [this] {
            session().readCommonParameters();
            session().announce({{&schema::Common::table}, StoredChange::Kind::Changed});
        });
    if (refusal && refusal->kind() == StoreError::Kind::Changed)
        attempt(this, messages(), [this] { openSource(); });
    messages().error(this, refusedStoreMessage(), cause);
}

void RecordEditor::recordStored()
{
    FormDialog::accept();
}

QString RecordEditor::refusedStoreMessage() const
{
    return tr("Can't store this record in database. Please check whether all data are valid");
}
