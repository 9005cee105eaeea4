// The colours of the system, and the little that has to be added to them. Dark ones have to be
// asked for on Windows; elsewhere the desktop's own style shows them as it does high contrast.
#pragma once

/// Lets the windows take the system's dark colours where its user chose them. To be called before
/// the application is made; what the user set in QT_QPA_PLATFORM is kept.
void allowDarkColors();

/// Gives the application the style that can draw its colours, of which the native one of Windows
/// draws light ones only, dark rows to its lists there, edges that can be seen and placeholders
/// that can be read. To be called again when the system's colours are others.
void chooseStyle();
