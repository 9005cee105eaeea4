#include "data/undohistory.h"

#include <algorithm>
#include <utility>

namespace {

// Whether it would be refused for ever: the rows, and not the disk or another program's lock, are
// in its way.
bool noLongerFits(const StoreError &error)
{
    using enum StoreError::Kind;
    return error.kind() == Changed || error.kind() == Gone || error.kind() == NameTaken ||
           error.kind() == ReferenceRefused;
}

std::vector<const schema::Table *> tablesOfAll(const std::vector<Changeset> &changes)
{
    std::vector<const schema::Table *> tables;
    for (const Changeset &part : changes) {
        for (const schema::Table *table : tablesOf(part)) {
            if (std::find(tables.begin(), tables.end(), table) == tables.end())
                tables.push_back(table);
        }
    }
    return tables;
}

} // namespace

UndoHistory::Recording::Recording(UndoHistory &history, const QString &description, QDate day)
    : m_history(history)
    , m_outermost(!history.m_connection.recorder())
    , m_description(description)
    , m_day(day)
{
    if (m_outermost)
        history.m_connection.setRecorder(&m_recorder);
}

UndoHistory::Recording::~Recording()
{
    if (!m_outermost)
        return;
    m_history.m_connection.setRecorder(nullptr);
    if (!m_recorder.committed().empty())
        m_history.add({m_description, m_day, std::move(m_recorder.committed())});
}

void UndoHistory::add(Step step)
{
    m_undone.clear();
    m_done.push_back(std::move(step));
    if (m_done.size() > mostSteps)
        m_done.pop_front();
}

void UndoHistory::forget()
{
    m_done.clear();
    m_undone.clear();
}

const UndoHistory::Step *UndoHistory::next(Direction direction) const
{
    const Steps &steps = direction == Direction::Backward ? m_done : m_undone;
    return steps.empty() ? nullptr : &steps.back();
}

UndoHistory::Step UndoHistory::take(Direction direction)
{
    Steps &from = steps(direction);
    const auto move = [&] {
        Step step = std::move(from.back());
        from.pop_back();
        return step;
    };
    Steps &to = steps(direction == Direction::Backward ? Direction::Forward : Direction::Backward);
    from.back().tables = tablesOfAll(from.back().changes);
    try {
        apply(from.back(), direction);
    } catch (const StoreError &error) {
        if (noLongerFits(error))
            move();
        if (error.kind() == StoreError::Kind::Uncertain)
            to.push_back(move()); // all was written; where it was not, the rows will say so
        throw;
    }
    to.push_back(move());
    return to.back();
}

void UndoHistory::apply(const Step &step, Direction direction)
{
    std::vector<const Changeset *> changes;
    changes.reserve(step.changes.size());
    for (const Changeset &part : step.changes)
        changes.push_back(&part);
    if (direction == Direction::Backward)
        std::reverse(changes.begin(), changes.end());

    WriteTransaction transaction(m_connection);
    for (const Changeset *part : changes)
        ::apply(m_connection.database().getHandle(), *part, direction);
    transaction.commit();
}
