#include "ui/pickers.h"

#include "session/session.h"

#include <QCalendarWidget>
#include <QKeyEvent>
#include <QWheelEvent>

namespace {

class TimePicker : public QTimeEdit
{
public:
    using QTimeEdit::QTimeEdit;

protected:
    // Enter in a half-typed time would complete it and, in the same moment, store what nobody has
    // seen: it goes to the dialog, which refuses.
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && !hasAcceptableInput())
            event->ignore();
        else
            QTimeEdit::keyPressEvent(event);
    }

    // The wheel turns the time that is being entered, not the one that the pointer rests on.
    void wheelEvent(QWheelEvent *event) override
    {
        if (hasFocus())
            QTimeEdit::wheelEvent(event);
        else
            event->ignore();
    }
};

} // namespace

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
    auto *picker = new TimePicker(parent);
    picker->setFocusPolicy(Qt::StrongFocus);
    picker->setObjectName(name);
    picker->setLocale(session.text().locale());
    picker->setDisplayFormat(session.qtPickerTimeFormat());
    return picker;
}
