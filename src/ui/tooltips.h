// Texts of any length in tooltips.
#pragma once

#include <QString>

/// A plain text for a tooltip: wrapped in a small box, its own markup not interpreted, and of a
/// very long one the beginning.
QString toolTipOf(const QString &text);
