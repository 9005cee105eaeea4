// What the user did, step by step, to be taken back and done again.
#pragma once

#include "data/changerecorder.h"
#include "data/connection.h"

#include <QDate>

#include <deque>

/// Keeps what each action has changed for the life of the program. Taking a step back stores it as
/// durably as the action was stored, and is refused as a whole where another program has changed
/// one of its rows since. The counters of table Common are in no step, so that an identifier is
/// never handed out twice: they are raised before a recording begins.
class UndoHistory
{
public:
    /// Older steps than these are forgotten.
    static constexpr size_t mostSteps = 500;

    explicit UndoHistory(Connection &connection)
        : m_connection(connection)
    {
    }

    /// One action of the user, in as many statements and transactions as it takes.
    struct Step
    {
        QString description; ///< "Adding Banana"
        QDate day;           ///< shown when it was done
        std::vector<Changeset> changes;
        std::vector<const schema::Table *> tables = {}; ///< that it changes, once it is taken
    };

    /// While it lives, what the connection commits becomes one step; none where nothing was
    /// changed. Within another one it is a part of that.
    class Recording
    {
    public:
        Recording(UndoHistory &history, const QString &description, QDate day);
        ~Recording();
        Recording(const Recording &) = delete;
        Recording &operator=(const Recording &) = delete;

        void describe(const QString &description) { m_description = description; }

    private:
        UndoHistory &m_history;
        const bool m_outermost;
        ChangeRecorder m_recorder;
        QString m_description;
        QDate m_day;
    };

    /// The step that is next in this direction, null where there is none.
    const Step *next(Direction direction) const;
    /// Takes it, durably, and returns it; there must be one. Throws StoreError where it is
    /// refused: nothing is changed then. One that no longer fits the rows is forgotten.
    Step take(Direction direction);
    /// Forgets all steps; what they did stays.
    void forget();

private:
    using Steps = std::deque<Step>;

    Steps &steps(Direction direction)
    {
        return direction == Direction::Backward ? m_done : m_undone;
    }
    void add(Step step);
    void apply(const Step &step, Direction direction);

    Connection &m_connection;
    Steps m_done;
    Steps m_undone; ///< the one taken back last is the last
};
