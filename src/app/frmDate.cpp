#include "app/frmDate.h"

#include "session/session.h"
#include "ui/entrydays.h"
#include "ui/pickers.h"

#include <QFormLayout>
#include <QLabel>

frmDate::frmDate(Session &session, Messages &messages, QWidget *parent)
    : FormDialog(session, messages, QStringLiteral("frmDate"), tr("Set Current Date"), parent)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
{
    dtpDate->setAccessibleName(tr("Current date"));
    dtpDate->setDate(session.currentDate());
    markEntryDays(*dtpDate->calendarWidget(), session.data());
    checkTyped(dtpDate, tr("Date"));

    auto *form = new QFormLayout;
    form->addRow(makeLabel(tr("&Date"), dtpDate), dtpDate);
    setForm(form);
    focusFirstField();
}

void frmDate::accept()
{
    if (!Validate())
        return;
    session().setCurrentDate(dtpDate->date());
    if (session().currentDate() == dtpDate->date()) // the main window has told why it is not
        FormDialog::accept();
}
