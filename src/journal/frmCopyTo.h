// Copies an entry to a day.
#pragma once

#include "journal/entrycopying.h"
#include "ui/daydialog.h"

/// Asks for the day, the one after the day shown at first.
class frmCopyTo : public DayDialog
{
    Q_OBJECT

public:
    frmCopyTo(Session &session, Messages &messages, const EntryKind &kind, qint32 id,
              QWidget *parent = nullptr);

    /// Shows the dialog modally; what was copied.
    std::optional<EntryCopies> run();

private:
    void accept() override;

    const EntryKind &m_kind;
    qint32 m_id;
    std::optional<EntryCopies> m_copies;
};
