// Date and time pickers in the user's formats.
#pragma once

#include <QDateEdit>
#include <QTimeEdit>

class Session;

/// The locale's short date with a four-digit year and a calendar that drops down.
QDateEdit *makeDatePicker(const Session &session, const QString &name, QWidget *parent);
/// A time of day in the picker time format.
QTimeEdit *makeTimePicker(const Session &session, const QString &name, QWidget *parent);
