// The main window.
#pragma once

#include "data/undohistory.h"

#include <QDate>
#include <QMainWindow>

#include <vector>

class DayView;
class Messages;
class QTimer;
class Session;
struct EntryCommand;
struct EntryCopies;
struct Removal;
struct StoredChange;

/// Shows the current date and its calorie chart, moves the date, and opens every other window.
/// Closing it ends the program.
class frmMain : public QMainWindow
{
    Q_OBJECT

public:
    frmMain(Session &session, Messages &messages);

    /// Fills the chart with the data of the current date, without repainting. Throws StoreError;
    /// the chart then keeps what it had been given so far.
    void LoadGraph();
    /// LoadGraph, then repaints.
    void RePaintGraph();

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    struct Command;
    struct ItemCommands;

    static std::vector<Command> commands();
    void makeCommands();
    void addEntry(QMenu &menu, const Command &command);
    void makeConnections();
    void showPictures();
    void showSampleNotice();
    void showHistory();

    // They draw what the session tells of, or say that it can't be drawn.
    void followDay();
    void followRecords(const StoredChange &change);
    void followOtherPrograms();
    void redraw();
    void showNow();
    void tellMissing();
    void undo();
    void redo();
    void takeStep(Direction direction, const QString &refusal);
    void showStep(const UndoHistory::Step &step);
    void quickAdd();
    void composeMeal();
    void openGoals();
    void backUp();
    void restoreBackup();
    void openBackupSettings();
    void showBackupState();
    void showToday();
    void showPreviousDay();
    void showNextDay();
    void setDate();
    void showMeals();
    void addMeal();
    void chooseMeal(int id, bool hit, QTime time);
    void addMealAt(QTime time);
    void takeTime(QTime time);
    void openMeasurements();
    void addMeasurement();
    void addNote();
    void showActivities();
    void addActivity();
    void chooseActivity(int id, bool hit, QTime time);
    void addActivityAt(QTime time);
    void showMealMenu(int id, QTime time, QPoint at);
    void showActivityMenu(int id, QTime time, QPoint at);
    void showChartMenu(int id, QTime time, QPoint at, const ItemCommands &commands);
    void copyDay();
    void showCopies(const EntryCopies &copies);
    void runOnEntry(const EntryCommand &command, qint32 id);
    void removeEntry(const Removal &removal, qint32 id);
    template<typename Editor>
    void openEditor(qint32 id, bool addMode);
    template<typename List>
    void openDayList();
    void printChart();
    void deleteTrialData();
    void openMealCategories();
    void openMeals();
    void openExercises();
    void openCommonParameters();
    void openGeneralProgress();
    void exportJournalFiles();
    void importFiles();
    void checkJournalFile();
    void openPassword();
    void leave();
    void showAbout();
    void showHelpContents();
    void showHelpOfMainForm();

    Session &m_session;
    Messages &m_messages;
    DayView *m_view;
    QToolBar *tlbToolBar;
    QAction *mnuUndo = nullptr;
    QAction *mnuRedo = nullptr;
    QTimer *m_nextMinute;             ///< runs while today is shown
    std::vector<QAction *> m_entries; ///< of the menus
    QDate m_shownDate;                ///< of the chart
    qint64 m_shownVersion = 0;        ///< of the file, as other programs have changed it
    QString m_missing;                ///< why it doesn't show all of the day; empty where it does
    QDate m_toldDate;                 ///< the day of which that was said last
};
