// What any Qt program with a main window costs: a menu, a toolbar, nothing in between.
#include "firstpaint.h"

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolBar>

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    QAction *action = window.menuBar()->addMenu(QStringLiteral("&Menu"))->addAction("&Entry");
    window.addToolBar(QStringLiteral("Toolbar"))->addAction(action);
    window.resize(960, 680);
    FirstPaint firstPaint(window);
    window.show();
    return QApplication::exec();
}
