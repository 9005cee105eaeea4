#include "ui/updownspinner.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

UpDownSpinner::UpDownSpinner(QLineEdit *box, const QString &what, QWidget *parent)
    : QWidget(parent)
    , m_box(box)
{
    auto *up = makeButton(Qt::UpArrow, tr("Increase %1").arg(what));
    auto *down = makeButton(Qt::DownArrow, tr("Decrease %1").arg(what));
    connect(up, &QToolButton::clicked, this, &UpDownSpinner::upPressed);
    connect(down, &QToolButton::clicked, this, &UpDownSpinner::downPressed);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(up);
    layout->addWidget(down);
    box->installEventFilter(this);
}

QToolButton *UpDownSpinner::makeButton(Qt::ArrowType arrow, const QString &name)
{
    auto *button = new QToolButton;
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setFocusPolicy(Qt::NoFocus); // the keys of the box do the same
    button->setToolTip(name);
    button->setAccessibleName(name);
    // Together as high as the text box that they stand beside.
    const int height = m_box->sizeHint().height();
    button->setFixedSize(height * 3 / 4, (height + 1) / 2);
    return button;
}

bool UpDownSpinner::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent *>(event)->key()) {
    case Qt::Key_Up:
        Q_EMIT upPressed();
        return true;
    case Qt::Key_Down:
        Q_EMIT downPressed();
        return true;
    default:
        return QWidget::eventFilter(watched, event);
    }
}
