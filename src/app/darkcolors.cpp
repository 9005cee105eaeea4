#include "app/darkcolors.h"

#include "plot/colors.h"
#include "ui/edgestyle.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

namespace {

bool isDark()
{
    return QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
}

} // namespace

void allowDarkColors()
{
#ifdef Q_OS_WIN
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
#endif
}

void chooseStyle()
{
    QPalette own; // all else stays the system's
#ifdef Q_OS_WIN
    if (isDark() && QApplication::style()->name() == QLatin1String("windowsvista"))
        QApplication::setStyle(QStringLiteral("fusion"));
    // Every other row of a list would have the colour of a selected one.
    if (isDark())
        own.setColor(QPalette::AlternateBase,
                     QGuiApplication::palette().color(QPalette::Base).lighter(120));
#endif
    if (isDark() && QApplication::style()->name() == QLatin1String("fusion"))
        QApplication::setStyle(new EdgeStyle(QStringLiteral("fusion")));
    // Most styles have half transparent ones, too faint to read.
    own.setColor(QPalette::PlaceholderText, plot::BaseColors(QGuiApplication::palette()).muted);
    static QPalette before;
    if (own == before && own.resolveMask() == before.resolveMask())
        return; // this very change is what is told of
    before = own;
    QApplication::setPalette(own);
}
