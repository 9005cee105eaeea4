// Date and time pickers in the user's formats.
#pragma once

#include <QDateEdit>
#include <QTimeEdit>

class Session;

/// The locale's short date with a four-digit year and a calendar that drops down.
QDateEdit *makeDatePicker(const Session &session, const QString &name, QWidget *parent);
/// A time of day in the picker time format; on a 12-hour clock A and P are enough for its half.
QTimeEdit *makeTimePicker(const Session &session, const QString &name, QWidget *parent);
/// Takes what is written in such a picker as its time. False, and the text left as it is, where
/// part of the time is missing: the picker's time is then one that nobody sees.
bool takeTypedTime(QTimeEdit &picker);
