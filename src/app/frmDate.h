// The Set Date dialog.
#pragma once

#include "ui/formdialog.h"

class QDateEdit;

/// Picks the current date; OK hands it to the session.
class frmDate : public FormDialog
{
    Q_OBJECT

public:
    frmDate(Session &session, Messages &messages, QWidget *parent = nullptr);

private:
    void accept() override;

    QDateEdit *dtpDate;
};
