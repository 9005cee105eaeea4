#include "ui/daydialog.h"

#include "session/session.h"
#include "ui/entrydays.h"
#include "ui/pickers.h"

#include <QFormLayout>
#include <QLabel>

DayDialog::DayDialog(Session &session, Messages &messages, const QString &name,
                     const QString &caption, const QString &accessibleName, QDate day,
                     QWidget *parent)
    : FormDialog(session, messages, name, caption, parent)
    , dtpDate(makeDatePicker(session, QStringLiteral("dtpDate"), this))
{
    dtpDate->setAccessibleName(accessibleName);
    dtpDate->setDate(day);
    markEntryDays(*dtpDate->calendarWidget(), session.data());
    checkTyped(dtpDate, tr("Date"));

    auto *form = new QFormLayout;
    form->addRow(makeLabel(tr("&Date"), dtpDate), dtpDate);
    setForm(form);
    focusFirstField();
}

QDate DayDialog::day() const
{
    return dtpDate->date();
}
