// A dialog that asks for a day.
#pragma once

#include "ui/formdialog.h"

class QDateEdit;

/// One date picker, in whose calendar the days with entries stand out bold. A window says what OK
/// does with the day.
class DayDialog : public FormDialog
{
    Q_OBJECT

protected:
    /// The accessible name is that of the picker.
    DayDialog(Session &session, Messages &messages, const QString &name, const QString &caption,
              const QString &accessibleName, QDate day, QWidget *parent);

    QDate day() const;

private:
    QDateEdit *dtpDate;
};
