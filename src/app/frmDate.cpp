#include "app/frmDate.h"

#include "session/session.h"

frmDate::frmDate(Session &session, Messages &messages, QWidget *parent)
    : DayDialog(session, messages, QStringLiteral("frmDate"), tr("Set Current Date"),
                tr("Current date"), session.currentDate(), parent)
{
}

void frmDate::accept()
{
    if (!Validate())
        return;
    session().setCurrentDate(day());
    if (session().currentDate() == day()) // the main window has told why it is not
        FormDialog::accept();
}
