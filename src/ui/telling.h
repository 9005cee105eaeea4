// What is told without a message box.
#pragma once

class QLabel;
class QString;

/// Shows a text, which a screen reader says at once; an empty one ends that.
void tell(QLabel &label, const QString &text);
/// Has a screen reader say the text that a label shows already.
void announce(QLabel &label);
