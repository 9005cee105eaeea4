#include "ui/removal.h"

#include "session/session.h"
#include "ui/actionrecording.h"
#include "ui/attempt.h"
#include "ui/messages.h"

#include <QCoreApplication>
#include <QScopeGuard>

namespace {

struct RemovalTexts
{
    Q_DECLARE_TR_FUNCTIONS(RemovalTexts)
};

void remove(deData &data, const Removal &removal, qint32 id)
{
    if (removal.command) {
        data.run(*removal.command, {Value(id)});
        return;
    }
    Recordset &records = removal.records;
    const auto close = qScopeGuard([&records] { records.close(); });
    records.reopen({Value(id)});
    if (!records.isEof())
        records.remove();
}

} // namespace

bool confirmRemoval(QWidget *parent, Messages &messages)
{
    return messages.ask(parent, RemovalTexts::tr("Are you sure"),
                        RemovalTexts::tr("Are you sure you want to delete the selected record?"));
}

bool removeRecord(QWidget *parent, Session &session, Messages &messages, const Removal &removal,
                  qint32 id, const QString &refusal)
{
    try {
        ActionRecording recording(session, ActionRecording::Action::Deleting,
                                  *removal.records.command().table);
        recording.name(id);
        remove(session.data(), removal, id);
    } catch (const std::exception &error) {
        messages.error(parent, refusal, causeOf(error));
        return false;
    }
    session.announce({{removal.records.command().table}, StoredChange::Kind::Removed});
    return true;
}
