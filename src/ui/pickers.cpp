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
    void keyPressEvent(QKeyEvent *event) override
    {
        // Enter in a half-typed time would complete it and, in the same moment, store what nobody
        // has seen: it goes to the dialog, which asks takeTypedTime.
        const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
        if (enter && !hasAcceptableInput())
            event->ignore();
        else if (currentSection() == AmPmSection && event->key() == Qt::Key_A)
            setAfternoon(false);
        else if (currentSection() == AmPmSection && event->key() == Qt::Key_P)
            setAfternoon(true);
        else
            QTimeEdit::keyPressEvent(event);
    }

    // The wheel turns the time that is being entered, not one that the pointer passes over.
    void wheelEvent(QWheelEvent *event) override
    {
        if (hasFocus())
            QTimeEdit::wheelEvent(event);
        else
            event->ignore();
    }

private:
    void setAfternoon(bool on)
    {
        setTime(QTime(time().hour() % 12 + (on ? 12 : 0), time().minute()));
        setSelectedSection(AmPmSection);
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

bool takeTypedTime(QTimeEdit &picker)
{
    if (picker.hasAcceptableInput())
        return true;
    // One digit of the minutes is enough: "8:5" is as good as 8:05.
    const QString format = picker.displayFormat().replace(QLatin1String("mm"), QLatin1String("m"));
    const QTime typed = picker.locale().toTime(picker.text(), format);
    if (!typed.isValid())
        return false;
    picker.setTime(typed);
    return true;
}
