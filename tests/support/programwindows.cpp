#include "programwindows.h"

#include "app/frmMain.h"
#include "exchange/frmImport.h"
#include "help/helpviewer.h"
#include "progress/frmGeneralProgress.h"
#include "ui/frmUnlock.h"

#include <QAction>
#include <QCheckBox>
#include <QTabWidget>

using namespace Qt::Literals;

ProgramWindows::ProgramWindows(const char *sql)
{
    journal.exec("insert into MealConsume values (-1, 1, 46225, 0.5, 3), (-2, 1, 46224, 0.5, 3);"
                 "insert into ExercisePerform values (-1, 1, 46225, 0.5, 0.6, 3),"
                 " (-2, 1, 46224, 0.5, 0.6, 3);"
                 "insert into Body values (-1, 46220, 70, 90, 80, 95, 'M');"
                 "insert into UserNote values (-1, 46220, 46222, 'A headache and a cold')");
    journal.exec(sql);
    mainWindow = std::make_unique<frmMain>(*journal.session, journal.messages);
    mainWindow->show();
    if (!QTest::qWaitForWindowExposed(mainWindow.get()))
        qFatal("The main window does not appear");
}

ProgramWindows::~ProgramWindows() = default;

// A window is opened by a menu entry, then by a button of the one before and so on.
void ProgramWindows::forEachOfMenus(const Look &look)
{
    look(*mainWindow);
    for (const QString path :
         // NOLINTNEXTLINE(bugprone-suspicious-missing-comma)
         {"mnuMealConsume frmMealConsumes btnEdit frmMealConsume btnNewMeal frmMeal btnNewCategory "
          "frmMealCategory",
          "mnuAddMeal frmMealConsume",
          "mnuExercisePerformed frmExercisePerforms btnEdit frmExercisePerform",
          "mnuMeasurement frmMeasurements btnMeasurementNew frmBody",
          "mnuMeasurement frmMeasurements btnNotetNew frmUserNote",
          "mnuSetDate frmDate",
          "mnuCopyDay frmCopyDay",
          "mnuMealConsume frmMealConsumes mnuCopyTo frmCopyTo",
          "mnuMealCategories frmMealCategories",
          "mnuMeal frmMeals btnEdit frmMeal",
          "mnuExercises frmExercises btnNew frmExercise btnWeightAdjust frmWeightAdjustment",
          "mnuQuickAdd frmQuickAdd",
          "mnuComposeMeal frmComposeMeal",
          "mnuGoals frmGoals",
          "mnuExport frmExport",
          "mnuImport frmImport",
          "mnuCheckJournal frmCheckJournal",
          "mnuPassword frmPassword",
          "mnuRestore frmRestore",
          "mnuBackupSettings frmBackupSettings",
          "mnuCommon frmCommon",
          "mnuHelpAbout frmAbout",
          "mnuGeneralProgress frmGeneralProgressSettings"})
        open(*mainWindow, path.split(u' '), look);
}

void ProgramWindows::open(QWidget &from, QStringList path, const Look &look)
{
    const QString opener = path.takeFirst();
    const QString name = path.takeFirst();
    if (auto *box = from.findChild<QCheckBox *>())
        box->setChecked(true);
    if (from.findChild<QTreeView *>(u"lvwList"_s))
        selectRow(from, 0);
    journal.messages.answers = {true, true};
    const auto press = [&] {
        if (auto *entry = from.findChild<QAction *>(opener))
            entry->trigger();
        else
            control<QPushButton>(from, qPrintable(opener)).click();
    };
    inDialog(qPrintable(name), press, [&](QWidget &window) {
        look(window);
        if (!path.isEmpty())
            open(window, path, look);
    });
}

void ProgramWindows::forEachOther(const QStringList &imported, const Look &look)
{
    const auto showProgress = [this] {
        showGeneralProgress(*journal.session, journal.messages,
                            progress::periodOfMonths(QDate(2026, 7, 1), 3), mainWindow.get());
    };
    const auto lookAtTabs = [&look](QWidget &window, const char *name) {
        auto &tabs = control<QTabWidget>(window, name);
        for (int page = 0; page < tabs.count(); ++page) {
            tabs.setCurrentIndex(page);
            look(window);
        }
    };
    inDialog("frmGeneralProgress", showProgress,
             [&](QWidget &window) { lookAtTabs(window, "tabPages"); });
    frmImport import(*journal.session, journal.messages, mainWindow.get());
    inDialog(
        "frmImport", [&] { import.exec(); },
        [&](QWidget &window) {
            import.read(imported);
            lookAtTabs(window, "tabFile");
        });
    HelpViewer help(QString(), mainWindow.get());
    inDialog(
        "helpViewer", [&] { help.exec(); }, look);
    frmUnlock unlock(journal.messages, journal.path(), [](const FilePassword &) { return false; });
    inDialog(
        "frmUnlock", [&] { unlock.exec(); }, look);
    MessageBoxes boxes;
    for (const QString &text : {u"A very long note. "_s.repeated(1000), QString(2000, u'x')})
        inDialog(
            "message", [&] { boxes.error(mainWindow.get(), text); }, look);
    inDialog(
        "", [&] { boxes.ask(mainWindow.get(), u"Are you sure?"_s, u"It is deleted."_s); }, look);
}
