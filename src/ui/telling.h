// What is told without a message box.
#pragma once

#include <QAccessible>
#include <QLabel>

/// Shows a text, which a screen reader says at once; an empty one ends that.
inline void tell(QLabel &label, const QString &text)
{
    label.setText(text);
    if (text.isEmpty())
        return;
    QAccessibleEvent said(&label, QAccessible::Alert);
    QAccessible::updateAccessibility(&said);
}
