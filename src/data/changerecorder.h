// What a transaction changes, in the form in which the engine can take it back.
#pragma once

#include "data/schema.h"

#include <memory>
#include <vector>

struct sqlite3;
struct sqlite3_session;

/// The rows that one transaction has added, changed and deleted, with their values before and
/// after: a changeset of the engine's session extension.
using Changeset = std::vector<char>;

/// The tables that it changes.
std::vector<const schema::Table *> tablesOf(const Changeset &changes);

enum class Direction
{
    Backward, ///< takes the changes back
    Forward   ///< makes them again
};

/// Changes the rows within the open transaction. Throws StoreError where one of them is no longer
/// as the changes left it or found it, where its place is taken or others refer to it; the
/// transaction is then to be rolled back.
void apply(sqlite3 *database, const Changeset &changes, Direction direction);

/// Follows the transactions of a connection that it was handed to, one after the other.
class ChangeRecorder
{
public:
    /// After the transaction has begun, and before it is committed. Both throw StoreError.
    void begin(sqlite3 *database);
    void capture();
    /// In between: what was changed so far and what follows become changesets of their own, for
    /// changes that can't be taken back row by row in any order.
    void divide(sqlite3 *database);
    /// Once it is committed; what is rolled back is forgotten.
    void keep();
    void forget();

    /// Of the committed transactions, those that changed something.
    std::vector<Changeset> &committed() { return m_committed; }

private:
    struct Ending
    {
        void operator()(sqlite3_session *session) const;
    };

    void follow(sqlite3 *database);

    std::unique_ptr<sqlite3_session, Ending> m_session;
    std::vector<Changeset> m_captured; ///< of the open transaction
    std::vector<Changeset> m_committed;
};
