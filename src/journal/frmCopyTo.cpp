#include "journal/frmCopyTo.h"

#include "session/session.h"
#include "ui/actionrecording.h"

#include <QPushButton>

frmCopyTo::frmCopyTo(Session &session, Messages &messages, const EntryKind &kind, qint32 id,
                     QWidget *parent)
    : DayDialog(session, messages, QStringLiteral("frmCopyTo"),
                tr("Copy %1").arg(recordName(session, *kind.table, id)), tr("Day to copy to"),
                session.currentDate().addDays(1), parent)
    , m_kind(kind)
    , m_id(id)
{
    btnOK->setText(tr("C&opy"));
}

std::optional<EntryCopies> frmCopyTo::run()
{
    exec();
    return m_copies;
}

void frmCopyTo::accept()
{
    if (!Validate())
        return;
    m_copies = copyEntry(this, session(), messages(), m_kind, m_id, day());
    if (m_copies)
        FormDialog::accept();
}
