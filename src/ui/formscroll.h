// A form that is larger than its room.
#pragma once

#include <QScrollArea>

/// Scrolls the form; the field that gets the focus comes into sight.
class FormScroll : public QScrollArea
{
    Q_OBJECT

public:
    FormScroll(QWidget *form, QWidget *parent);
    ~FormScroll() override;

    QSize sizeHint() const override;

private:
    void bringIntoSight(const QWidget &field);
};
