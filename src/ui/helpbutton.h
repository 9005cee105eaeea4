#pragma once

class QPushButton;
class QWidget;

/// The "&Help" button of a window: asks for the page of the window that it stands in, as F1 does.
QPushButton *makeHelpButton(QWidget *parent);
