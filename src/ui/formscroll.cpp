#include "ui/formscroll.h"

#include <QApplication>
#include <QScrollBar>

FormScroll::FormScroll(QWidget *form, QWidget *parent)
    : QScrollArea(parent)
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setWidget(form);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *now) {
        if (widget() && widget()->isAncestorOf(now))
            bringIntoSight(*now);
    });
}

// The focus moves on once more while the fields are being deleted.
FormScroll::~FormScroll()
{
    disconnect(qApp, nullptr, this, nullptr);
}

QSize FormScroll::sizeHint() const
{
    return widget()->sizeHint() + QSize(verticalScrollBar()->sizeHint().width(),
                                        horizontalScrollBar()->sizeHint().height());
}

// All of it; ensureWidgetVisible() is content with a text box's cursor.
void FormScroll::bringIntoSight(const QWidget &field)
{
    const QPoint middle = field.mapTo(widget(), field.rect().center());
    ensureVisible(middle.x(), middle.y(), field.width() / 2 + 1, field.height() / 2 + 1);
}
