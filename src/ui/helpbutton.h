#pragma once

class QPushButton;
class QWidget;

/// Sends the F1 key to a window, as its help button does.
void sendHelpKey(QWidget *window);
/// The "&Help" button of a window: asks for the page of the window that it stands in, as F1 does.
QPushButton *makeHelpButton(QWidget *parent);
