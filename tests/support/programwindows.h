// Every window of the program, opened as its user opens it.
#pragma once

#include "dayjournal.h"

#include <memory>

class frmMain;

/// The main window of a journal with something in every list, and the way to all other windows.
class ProgramWindows
{
public:
    /// With what these statements change of the journal.
    explicit ProgramWindows(const char *sql = "");
    ~ProgramWindows();

    using Look = std::function<void(QWidget &)>;
    /// Shows each window that the main window's menus and the buttons behind them open, once, and
    /// looks at it while it is active.
    void forEachOfMenus(const Look &look);
    /// The same for the others: progress and an import of these files at each of their tabs, the
    /// help, messages, and what asks for a password.
    void forEachOther(const QStringList &imported, const Look &look);

    DayJournal journal;
    std::unique_ptr<frmMain> mainWindow;

private:
    void open(QWidget &from, QStringList path, const Look &look);
};
