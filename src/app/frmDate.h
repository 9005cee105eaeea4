// The Set Date dialog.
#pragma once

#include "ui/daydialog.h"

/// Picks the current date; OK hands it to the session.
class frmDate : public DayDialog
{
    Q_OBJECT

public:
    frmDate(Session &session, Messages &messages, QWidget *parent = nullptr);

private:
    void accept() override;
};
