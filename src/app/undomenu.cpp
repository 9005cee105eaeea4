// Undo and Redo of the main window.
#include "app/frmMain.h"

#include "session/session.h"
#include "ui/attempt.h"
#include "ui/messages.h"

#include <QAction>

namespace {

bool touchesDay(const UndoHistory::Step &step)
{
    const StoredChange change{step.tables, StoredChange::Kind::Changed};
    return change.touches(schema::MealConsume::table) ||
           change.touches(schema::ExercisePerform::table);
}

// Of a refusal that the rows themselves are the cause of, in the words of who takes a step.
QString causeOfRefusedStep(const StoreError &error)
{
    using enum StoreError::Kind;
    switch (error.kind()) {
    case Changed:
    case Gone:
    case NameTaken:
    case ReferenceRefused:
        return frmMain::tr("Another program has changed meanwhile what it would change. Nothing "
                           "was done, and the step is left out.");
    default:
        return causeOf(error);
    }
}

} // namespace

void frmMain::undo()
{
    takeStep(Direction::Backward, tr("%1 can't be undone"));
}

void frmMain::redo()
{
    takeStep(Direction::Forward, tr("%1 can't be redone"));
}

void frmMain::takeStep(Direction direction, const QString &refusal)
{
    const UndoHistory::Step *next = m_session.history().next(direction);
    if (!next)
        return;
    const QString description = next->description;
    UndoHistory::Step taken;
    try {
        taken = m_session.history().take(direction);
    } catch (const StoreError &error) {
        redraw(); // another program's changes may be the cause
        showHistory();
        m_messages.error(this, refusal.arg(description), causeOfRefusedStep(error));
        return;
    }
    showStep(taken);
}

// The day where it was done is shown, so that it is seen to be taken back.
void frmMain::showStep(const UndoHistory::Step &step)
{
    const StoredChange change{step.tables, StoredChange::Kind::Changed};
    if (change.touches(schema::Common::table))
        attempt(
            this, m_messages, [this] { m_session.readCommonParameters(); },
            tr("The common parameters can't be read anew. What was stored is stored"));
    if (touchesDay(step))
        m_session.setCurrentDate(step.day);
    m_session.announce(change);
}

// The entries say what they would do.
void frmMain::showHistory()
{
    const auto show = [this](QAction *entry, Direction direction, const QString &caption,
                             const QString &captionOf) {
        const UndoHistory::Step *next = m_session.history().next(direction);
        QString what = next ? next->description : QString();
        what.replace(u'&', QStringLiteral("&&"));
        entry->setText(next ? captionOf.arg(what) : caption);
        entry->setEnabled(next != nullptr);
    };
    show(mnuUndo, Direction::Backward, tr("&Undo"), tr("&Undo %1"));
    show(mnuRedo, Direction::Forward, tr("&Redo"), tr("&Redo %1"));
}
