#include "app/darkcolors.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

void allowDarkColors()
{
#ifdef Q_OS_WIN
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows:darkmode=2");
#endif
}

void chooseStyle()
{
#ifdef Q_OS_WIN
    static bool hasOwnRows = false;
    const bool isDark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    if (isDark && QApplication::style()->name() == QLatin1String("windowsvista"))
        QApplication::setStyle(QStringLiteral("fusion"));
    // Every other row of a list would have the colour of a selected one.
    QPalette rows;
    if (isDark)
        rows.setColor(QPalette::AlternateBase,
                      QGuiApplication::palette().color(QPalette::Base).lighter(120));
    if (isDark != hasOwnRows) {
        hasOwnRows = isDark;
        QApplication::setPalette(rows);
    }
#endif
}
