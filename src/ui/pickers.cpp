#include "ui/pickers.h"

#include "session/session.h"

#include <QCalendarWidget>

QDateEdit *makeDatePicker(const Session &session, const QString &name, QWidget *parent)
{
    auto *picker = new QDateEdit(parent);
    picker->setObjectName(name);
    picker->setLocale(session.text().locale());
    picker->setCalendarPopup(true);
    picker->calendarWidget()->setLocale(session.text().locale());
    QString format = session.text().locale().dateFormat(QLocale::ShortFormat);
    // Two digits would leave the century of a typed year to a guess.
    if (!format.contains(QLatin1String("yyyy")))
        format.replace(QLatin1String("yy"), QLatin1String("yyyy"));
    picker->setDisplayFormat(format);
    return picker;
}

QTimeEdit *makeTimePicker(const Session &session, const QString &name, QWidget *parent)
{
    auto *picker = new QTimeEdit(parent);
    picker->setObjectName(name);
    picker->setLocale(session.text().locale());
    picker->setDisplayFormat(session.qtPickerTimeFormat());
    return picker;
}
