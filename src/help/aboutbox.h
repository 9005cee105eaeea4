#pragma once

class QWidget;

/// What the program is, its version and its licence.
void showAboutBox(QWidget *parent);
