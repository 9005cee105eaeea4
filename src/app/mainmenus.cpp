// The main window's menus and its toolbar.
#include "app/frmMain.h"

#include "ui/attempt.h"

#include <QMenuBar>
#include <QToolBar>

void frmMain::makeMenus()
{
    addMenu("mnuOperate", tr("&Operate"),
            {{"mnuMealConsume", tr("&Meal Consumed List"), &frmMain::showMeals},
             {"mnuAddMeal", tr("&Add Meal"), &frmMain::addMeal},
             {"mnuSep1"},
             {"mnuExercisePerformed", tr("A&ctivities Performed List"), &frmMain::showActivities},
             {"mnuAddExercise", tr("A&dd Activity"), &frmMain::addActivity},
             {"mnuSep7"},
             {"mnuMeasurement", tr("&Body Measurement and Notes"), &frmMain::openMeasurements},
             {"mnuAddMeasurement", tr("Add Body Measu&rement"), &frmMain::addMeasurement},
             {"mnuAddNote", tr("Add &Note"), &frmMain::addNote},
             {"mnuSep6"},
             {"mnuPrintChart", tr("&Print Daily Chart"), &frmMain::printChart},
             {"mnuSep5"},
             {"mnuSetDate", tr("&Set Date"), &frmMain::setDate},
             {"mnuSep9"},
             {"mnuDeleteTrialData", tr("Delete Trial Data"), &frmMain::deleteTrialData},
             {"mnuSep4"},
             {"mnuExit", tr("E&xit"), &frmMain::leave}});
    addMenu("mnuAnalyze", tr("&Analyze"),
            {{"mnuGeneralProgress", tr("&General Progress"), &frmMain::openGeneralProgress}});
    addMenu("mnuSettings", tr("&Settings"),
            {{"mnuMealCategories", tr("Meal &Categories"), &frmMain::openMealCategories},
             {"mnuMeal", tr("&Meal"), &frmMain::openMeals},
             {"mnuExercises", tr("&Activities"), &frmMain::openExercises},
             {"mnuSep3"},
             {"mnuCommon", tr("C&ommon"), &frmMain::openCommonParameters}});
    addMenu("mnuHelp", tr("&Help"),
            {{"mnuHelpAbout", tr("&About"), &frmMain::showAbout},
             {"mnuHelpContents", tr("&Contents"), &frmMain::showHelpContents},
             {"mnuHelpMainForm", tr("&Main Form"), &frmMain::showHelpOfMainForm}});
}

void frmMain::addMenu(const char *name, const QString &caption,
                      std::initializer_list<Entry> entries)
{
    QMenu *menu = menuBar()->addMenu(caption);
    menu->setObjectName(QLatin1String(name));
    for (const Entry &entry : entries) {
        QAction *action = entry.handler ? menu->addAction(entry.caption) : menu->addSeparator();
        action->setObjectName(QLatin1String(entry.name));
        if (!entry.handler)
            continue;
        connect(action, &QAction::triggered, this, attempting(this, m_messages, entry.handler));
        m_entries[action->objectName()] = action;
    }
}

// A button is the menu entry of its name; its tooltip is its own.
void frmMain::makeToolBar()
{
    struct Button
    {
        const char *key = nullptr; ///< null for a separator
        QString toolTip = {};
    };
    const Button buttons[] = {
        {"mnuMealConsume", tr("Meal Consume List")},
        {"mnuAddMeal", tr("Add Meal")},
        {},
        {"mnuExercisePerformed", tr("Activities Performed List")},
        {"mnuAddExercise", tr("Add Activity")},
        {},
        {"mnuMeasurement", tr("Body Measurement & Notes")},
        {"mnuAddMeasurement", tr("Add Measurement")},
        {"mnuAddNote", tr("Add Note")},
        {},
        {"mnuPrintChart", tr("Print Daily Chart")},
        {"mnuGeneralProgress", tr("General Progress")},
        {},
        {"mnuMealCategories", tr("Configure Meal Categories")},
        {"mnuMeal", tr("Configure Meals")},
        {"mnuExercises", tr("Configure Activities")},
        {},
        {"mnuHelpAbout", tr("About the Program")},
        {"mnuHelpContents", tr("Help Contents")},
    };
    tlbToolBar->setObjectName(QStringLiteral("tlbToolBar"));
    tlbToolBar->setWindowTitle(tr("Toolbar"));
    tlbToolBar->setMovable(false);
    tlbToolBar->setContextMenuPolicy(Qt::PreventContextMenu); // it can't be switched off
    for (const Button &button : buttons) {
        if (!button.key) {
            tlbToolBar->addSeparator();
            continue;
        }
        QAction *entry = m_entries.at(QLatin1String(button.key));
        entry->setToolTip(button.toolTip);
        tlbToolBar->addAction(entry);
    }
    addToolBar(tlbToolBar);
}
