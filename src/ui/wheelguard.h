// The mouse wheel over input fields.
#pragma once

class QWidget;

/// Makes the wheel turn what is being entered and not what the pointer passes over: without the
/// focus a chooser, date, time or spin field neither changes nor takes the focus, and the wheel
/// goes to what lies behind it.
void guardFromWheel(QWidget &field);
