// The main window's menus and its toolbar.
#include "app/frmMain.h"

#include "ui/attempt.h"

#include <QMenuBar>
#include <QToolBar>

using namespace Qt::StringLiterals;

/// An entry of a menu, a separator in one, or a menu itself, which the entries behind it are in.
struct frmMain::Command
{
    QString name;
    QString caption = {}; ///< of a separator empty
    void (frmMain::*handler)() = nullptr;
    /// Where there is one, the entry has a button in the toolbar, too, with this tooltip.
    QString toolTip = {};
    QKeySequence shortcut = {};
    bool beginsGroup = false; ///< of buttons, behind a separator
};

std::vector<frmMain::Command> frmMain::commands()
{
    return {
        {u"mnuOperate"_s, tr("&Operate")},
        {u"mnuMealConsume"_s, tr("&Meal Consumed List"), &frmMain::showMeals,
         tr("Meal Consume List")},
        {u"mnuAddMeal"_s, tr("&Add Meal"), &frmMain::addMeal, tr("Add Meal"), Qt::CTRL | Qt::Key_M},
        {u"mnuSep1"_s},
        {u"mnuExercisePerformed"_s,
         tr("A&ctivities Performed List"),
         &frmMain::showActivities,
         tr("Activities Performed List"),
         {},
         true},
        {u"mnuAddExercise"_s, tr("A&dd Activity"), &frmMain::addActivity, tr("Add Activity"),
         Qt::CTRL | Qt::Key_E},
        {u"mnuSep7"_s},
        {u"mnuMeasurement"_s,
         tr("&Body Measurement and Notes"),
         &frmMain::openMeasurements,
         tr("Body Measurement & Notes"),
         {},
         true},
        {u"mnuAddMeasurement"_s, tr("Add Body Measu&rement"), &frmMain::addMeasurement,
         tr("Add Measurement"), Qt::CTRL | Qt::Key_B},
        {u"mnuAddNote"_s, tr("Add &Note"), &frmMain::addNote, tr("Add Note")},
        {u"mnuSep6"_s},
        {u"mnuPrintChart"_s,
         tr("&Print Daily Chart"),
         &frmMain::printChart,
         tr("Print Daily Chart"),
         {},
         true},
        {u"mnuSep5"_s},
        {u"mnuSetDate"_s, tr("&Set Date"), &frmMain::setDate, {}, Qt::CTRL | Qt::Key_G},
        {u"mnuSep9"_s},
        {u"mnuDeleteTrialData"_s, tr("Delete Trial Data"), &frmMain::deleteTrialData},
        {u"mnuSep4"_s},
        {u"mnuExit"_s, tr("E&xit"), &frmMain::leave},

        {u"mnuJournal"_s, tr("&Journal")},
        {u"mnuUndo"_s, tr("&Undo"), &frmMain::undo, {}, Qt::CTRL | Qt::Key_Z},
        {u"mnuRedo"_s, tr("&Redo"), &frmMain::redo, {}, Qt::CTRL | Qt::SHIFT | Qt::Key_Z},
        {u"mnuSep10"_s},
        {u"mnuQuickAdd"_s, tr("&Quick Add"), &frmMain::quickAdd, {}, Qt::CTRL | Qt::Key_K},
        {u"mnuCopyDay"_s, tr("&Copy from Another Day…"), &frmMain::copyDay},
        {u"mnuComposeMeal"_s, tr("Compose a &Meal…"), &frmMain::composeMeal},
        {u"mnuSep11"_s},
        {u"mnuToday"_s, tr("Go to &Today"), &frmMain::showToday, {}, Qt::CTRL | Qt::Key_T},
        {u"mnuPreviousDay"_s,
         tr("&Previous Day"),
         &frmMain::showPreviousDay,
         {},
         Qt::CTRL | Qt::Key_Left},
        {u"mnuNextDay"_s, tr("&Next Day"), &frmMain::showNextDay, {}, Qt::CTRL | Qt::Key_Right},
        {u"mnuSep12"_s},
        {u"mnuGoals"_s, tr("G&oals…"), &frmMain::openGoals},
        {u"mnuSep14"_s},
        {u"mnuBackUp"_s, tr("&Back Up…"), &frmMain::backUp},
        {u"mnuRestore"_s, tr("Re&store…"), &frmMain::restoreBackup},
        {u"mnuBackupSettings"_s, tr("Backup Settin&gs…"), &frmMain::openBackupSettings},
        {u"mnuSep13"_s},
        {u"mnuExport"_s, tr("&Export…"), &frmMain::exportJournalFiles},
        {u"mnuImport"_s, tr("&Import…"), &frmMain::importFiles},
        {u"mnuCheckJournal"_s, tr("Chec&k Journal…"), &frmMain::checkJournalFile},
        {u"mnuPassword"_s, tr("Pass&word…"), &frmMain::openPassword},

        {u"mnuAnalyze"_s, tr("&Analyze")},
        {u"mnuGeneralProgress"_s, tr("&General Progress"), &frmMain::openGeneralProgress,
         tr("General Progress")},

        {u"mnuSettings"_s, tr("&Settings")},
        {u"mnuMealCategories"_s,
         tr("Meal &Categories"),
         &frmMain::openMealCategories,
         tr("Configure Meal Categories"),
         {},
         true},
        {u"mnuMeal"_s, tr("&Meal"), &frmMain::openMeals, tr("Configure Meals")},
        {u"mnuExercises"_s, tr("&Activities"), &frmMain::openExercises, tr("Configure Activities")},
        {u"mnuSep3"_s},
        {u"mnuCommon"_s, tr("C&ommon"), &frmMain::openCommonParameters},

        {u"mnuHelp"_s, tr("&Help")},
        {u"mnuHelpAbout"_s, tr("&About"), &frmMain::showAbout, tr("About the Program"), {}, true},
        {u"mnuHelpContents"_s, tr("&Contents"), &frmMain::showHelpContents, tr("Help Contents")},
        {u"mnuHelpMainForm"_s, tr("&Main Form"), &frmMain::showHelpOfMainForm},
    };
}

void frmMain::makeCommands()
{
    tlbToolBar->setObjectName(u"tlbToolBar"_s);
    tlbToolBar->setWindowTitle(tr("Toolbar"));
    tlbToolBar->setMovable(false);
    tlbToolBar->setContextMenuPolicy(Qt::PreventContextMenu); // it can't be switched off
    QMenu *menu = nullptr;
    for (const Command &command : commands()) {
        if (!command.handler && !command.caption.isEmpty()) {
            menu = menuBar()->addMenu(command.caption);
            menu->setObjectName(command.name);
            continue;
        }
        Q_ASSERT(menu);
        if (command.handler)
            addEntry(*menu, command);
        else
            menu->addSeparator()->setObjectName(command.name);
    }
    addToolBar(tlbToolBar);
}

void frmMain::addEntry(QMenu &menu, const Command &command)
{
    QAction *entry = menu.addAction(command.caption);
    entry->setObjectName(command.name);
    entry->setShortcut(command.shortcut);
    connect(entry, &QAction::triggered, this, attempting(this, m_messages, command.handler));
    m_entries.push_back(entry);
    if (command.handler == &frmMain::undo)
        mnuUndo = entry;
    if (command.handler == &frmMain::redo)
        mnuRedo = entry;
    if (command.toolTip.isEmpty())
        return;
    if (command.beginsGroup)
        tlbToolBar->addSeparator();
    entry->setToolTip(command.toolTip);
    tlbToolBar->addAction(entry);
}
