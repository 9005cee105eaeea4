// Boxes in which a password is typed.
#pragma once

#include "data/filepassword.h"

class QCheckBox;
class QLineEdit;
class QWidget;

/// Hides what is typed, also from the suggestions of an input method.
void makeSecret(QLineEdit &box);

/// "Show", which unhides what stands in these boxes.
QCheckBox *makeShowBox(QWidget *parent, const QList<QLineEdit *> &boxes);

/// What stands in the box.
FilePassword passwordIn(const QLineEdit &box);
