#include "ui/icons.h"

#include "ui/pictureengine.h"

QIcon icon(const QString &name, const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return QIcon(new PictureEngine(
        QStringLiteral(":/icons/%1/%2").arg(dark ? "dark" : "light", name), {16, 20, 24, 32, 48}));
}

QIcon programIcon()
{
    return QIcon(new PictureEngine(QStringLiteral(":/icons/program/corvana"),
                                   {16, 24, 32, 48, 64, 128, 256}));
}
