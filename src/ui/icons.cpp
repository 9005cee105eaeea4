#include "icons.h"

#include <initializer_list>

namespace {

QIcon assemble(const QString &path, std::initializer_list<int> sizes)
{
    QIcon icon;
    for (const int size : sizes)
        icon.addFile(QStringLiteral("%1-%2.png").arg(path).arg(size), QSize(size, size));
    return icon;
}

} // namespace

QIcon icon(const QString &name, const QPalette &palette)
{
    const bool dark = palette.color(QPalette::Window).lightness() < 128;
    return assemble(QStringLiteral(":/icons/%1/%2").arg(dark ? "dark" : "light", name),
                    {16, 20, 24, 32, 48});
}

QIcon programIcon()
{
    return assemble(QStringLiteral(":/icons/program/corvana"), {16, 24, 32, 48, 64, 128, 256});
}
