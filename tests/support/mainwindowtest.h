// What the tests that work from the main window share.
#pragma once

#include "app/frmMain.h"
#include "dayjournal.h"

#include <QAccessible>
#include <QAction>

/// Holds a journal and the main window that shows it.
class MainWindowTest : public QObject
{
protected:
    /// Opens both anew, with these rows.
    void open(const char *sql = "",
              const QLocale &locale = QLocale(QLocale::English, QLocale::UnitedKingdom))
    {
        m_window.reset();
        m_journal = std::make_unique<DayJournal>(locale);
        m_journal->exec(sql);
        m_journal->session->readCommonParameters();
        m_window = std::make_unique<frmMain>(*m_journal->session, m_journal->messages);
        m_window->show();
        activate(*m_window);
    }
    QAction &entry(const char *name) const { return control<QAction>(*m_window, name); }
    /// Does the steps in the dialog that an entry of the menus opens.
    void inWindow(const char *menuEntry, const char *dialog,
                  const std::function<void(QWidget &)> &steps)
    {
        inDialog(
            dialog, [&] { entry(menuEntry).trigger(); }, steps);
        activate(*m_window);
    }
    QAccessibleInterface &chart() const
    {
        return *QAccessible::queryAccessibleInterface(&control<QWidget>(*m_window, "graph"));
    }
    /// What the chart tells of the day.
    QString chartText() const { return chart().text(QAccessible::Description); }

    std::unique_ptr<DayJournal> m_journal;
    std::unique_ptr<frmMain> m_window;
};
