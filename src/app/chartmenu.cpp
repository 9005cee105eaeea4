// The context menus of the daily chart.
#include "app/frmMain.h"

#include "app/dayview.h"
#include "chart/TrellumGraph.h"
#include "journal/entrycommands.h"
#include "session/session.h"
#include "ui/attempt.h"
#include "ui/messages.h"
#include "ui/removal.h"

#include <QMenu>

/// What can be done with the items of a lane.
struct frmMain::ItemCommands
{
    QString edit;
    QString remove;
    QString list;
    void (frmMain::*choose)(int id, bool hit, QTime time);
    Removal removal;
};

void frmMain::showMealMenu(int id, QTime time, QPoint at)
{
    showChartMenu(id, time, at,
                  {tr("&Edit Meal"),
                   tr("&Delete Meal"),
                   tr("Meal Consumed &List"),
                   &frmMain::chooseMeal,
                   {m_session.data().rsMealConsume, &commands::MealConsumeDelete}});
}

void frmMain::showActivityMenu(int id, QTime time, QPoint at)
{
    showChartMenu(id, time, at,
                  {tr("&Edit Activity"),
                   tr("&Delete Activity"),
                   tr("Activities Performed &List"),
                   &frmMain::chooseActivity,
                   {m_session.data().rsExercisePerform}});
}

void frmMain::showChartMenu(int id, QTime time, QPoint at, const ItemCommands &commands)
{
    auto *menu = new QMenu(m_view->graph); // where a screen reader looks for it
    menu->setObjectName(QStringLiteral("mnuChart"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [this, menu](const QString &caption, const std::function<void()> &run) {
        connect(menu->addAction(caption), &QAction::triggered, this,
                [this, run] { attempt(this, m_messages, run); });
    };
    const auto choose = commands.choose;
    if (id != 0) {
        add(commands.edit, [=, this] { (this->*choose)(id, true, time); });
        add(commands.remove, [this, removal = commands.removal, id] { removeEntry(removal, id); });
        menu->addSeparator();
        const EntryKind &kind = entryKindOf(*commands.removal.records.command().table);
        for (const EntryCommand &command : entryCommands(m_session, m_messages, kind)) {
            add(command.caption, [this, command, id] { runOnEntry(command, id); });
        }
        menu->addSeparator();
    }
    if (time.isValid()) {
        const QString then = m_session.text().listTime(time);
        add(tr("Add &Meal at %1").arg(then), [this, time] { addMealAt(time); });
        add(tr("Add &Activity at %1").arg(then), [this, time] { addActivityAt(time); });
        menu->addSeparator();
    }
    add(commands.list, [=, this] { (this->*choose)(0, false, QTime()); });
    menu->popup(at);
}

void frmMain::runOnEntry(const EntryCommand &command, qint32 id)
{
    std::optional<EntryCopies> copies;
    attempt(
        this, m_messages, [&] { copies = command.run(this, id); },
        tr("The record can't be opened"));
    if (copies)
        showCopies(*copies);
}

void frmMain::removeEntry(const Removal &removal, qint32 id)
{
    if (confirmRemoval(this, m_messages))
        removeRecord(this, m_session, m_messages, removal, id,
                     tr("This record can't be deleted from database"));
}
