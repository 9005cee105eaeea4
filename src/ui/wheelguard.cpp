#include "ui/wheelguard.h"

#include <QEvent>
#include <QWidget>

namespace {

class WheelGuard : public QObject
{
public:
    explicit WheelGuard(QWidget &field)
        : QObject(&field)
    {
    }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
            return false;
        event->ignore();
        return true;
    }
};

} // namespace

void guardFromWheel(QWidget &field)
{
    field.setFocusPolicy(Qt::StrongFocus);
    field.installEventFilter(new WheelGuard(field));
}
