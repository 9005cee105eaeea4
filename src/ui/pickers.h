// Date and time pickers in the user's formats.
#pragma once

#include <QDateEdit>
#include <QTimeEdit>

#include <functional>

class Session;

// What is typed stays as it is typed until Enter, until the focus leaves or until the window asks
// for it; then it is read as a whole, and either it is a date or time, or the field keeps it and
// its old value. The arrow keys walk the sections, Tab leaves the field.

/// The locale's short date with a four-digit year and a calendar that drops down.
QDateEdit *makeDatePicker(const Session &session, const QString &name, QWidget *parent);
/// A time of day in the picker time format; on a 12-hour clock A and P are enough for its half.
QTimeEdit *makeTimePicker(const Session &session, const QString &name, QWidget *parent);

/// Takes what is typed in such a picker as its value. False, and the text left as it is, where it
/// is no date or time, or only a part of one.
bool takeTyped(QDateTimeEdit &picker);
/// Selects what the next key is to replace: a refused text, or else the first section.
void selectForTyping(QDateTimeEdit &picker);
/// For a picker in a window without an OK button: Enter on a refused text calls `tell`, and when
/// the focus leaves such a text the picker shows its value again.
void whenRefused(QDateTimeEdit &picker, std::function<void()> tell);
