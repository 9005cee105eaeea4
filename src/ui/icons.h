#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

/// The picture of a menu entry or button, named as the entry's key (`mnuAddMeal`, `Plus`), in the
/// set that is legible on the palette's windows. It holds every size drawn and loads those used.
/// An unknown name gives an icon that shows nothing.
QIcon icon(const QString &name, const QPalette &palette);

/// The program's own icon.
QIcon programIcon();
