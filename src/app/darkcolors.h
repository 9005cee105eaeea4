// The dark colours of Windows. Elsewhere the desktop's own style shows them without being asked.
#pragma once

/// Lets the windows take the system's dark colours where its user chose them. To be called before
/// the application is made; what the user set in QT_QPA_PLATFORM is kept.
void allowDarkColors();

/// Gives the application the style that can draw its colours, of which the native one draws light
/// ones only, and dark rows to its lists.
void chooseStyle();
