#include "data/changerecorder.h"

#include "data/storeerror.h"

#include <QByteArray>
#include <QScopeGuard>

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <limits>

namespace {

void require(int result)
{
    if (result != SQLITE_OK)
        throw StoreError(SQLite::Exception(sqlite3_errstr(result), result));
}

int sizeOf(const Changeset &changes)
{
    if (changes.size() > size_t(std::numeric_limits<int>::max()))
        throw StoreError(StoreError::Kind::Other, "too many changes at once");
    return static_cast<int>(changes.size());
}

// The engine reads only, but doesn't say so.
void *bytesOf(const Changeset &changes)
{
    return const_cast<char *>(changes.data()); // NOLINT(cppcoreguidelines-pro-type-const-cast)
}

// The first row that doesn't fit ends it all.
int refuse(void *cause, int conflict, sqlite3_changeset_iter *)
{
    *static_cast<int *>(cause) = conflict;
    return SQLITE_CHANGESET_ABORT;
}

StoreError::Kind kindOf(int conflict)
{
    switch (conflict) {
    case SQLITE_CHANGESET_FOREIGN_KEY:
        return StoreError::Kind::ReferenceRefused;
    case SQLITE_CHANGESET_NOTFOUND:
        return StoreError::Kind::Gone;
    case SQLITE_CHANGESET_CONSTRAINT:
        return StoreError::Kind::NameTaken;
    default:
        return StoreError::Kind::Changed;
    }
}

} // namespace

std::vector<const schema::Table *> tablesOf(const Changeset &changes)
{
    std::vector<const schema::Table *> tables;
    sqlite3_changeset_iter *change = nullptr;
    require(sqlite3changeset_start(&change, sizeOf(changes), bytesOf(changes)));
    const auto end = qScopeGuard([change] { sqlite3changeset_finalize(change); });
    while (sqlite3changeset_next(change) == SQLITE_ROW) {
        const char *name = nullptr;
        int columns = 0;
        int operation = 0;
        require(sqlite3changeset_op(change, &name, &columns, &operation, nullptr));
        for (const schema::Table *table : schema::tables) {
            if (qstricmp(table->name(), name) == 0 &&
                std::find(tables.begin(), tables.end(), table) == tables.end())
                tables.push_back(table);
        }
    }
    return tables;
}

void apply(sqlite3 *database, const Changeset &changes, Direction direction)
{
    int conflict = 0;
    const int result = sqlite3changeset_apply_v2(
        database, sizeOf(changes), bytesOf(changes), nullptr, &refuse, &conflict, nullptr, nullptr,
        direction == Direction::Backward ? SQLITE_CHANGESETAPPLY_INVERT : 0);
    if (result != SQLITE_OK && conflict != 0)
        throw StoreError(kindOf(conflict), "a row is no longer as it was left");
    require(result);
}

void ChangeRecorder::Ending::operator()(sqlite3_session *session) const
{
    sqlite3session_delete(session);
}

void ChangeRecorder::begin(sqlite3 *database)
{
    forget();
    follow(database);
}

void ChangeRecorder::follow(sqlite3 *database)
{
    sqlite3_session *session = nullptr;
    require(sqlite3session_create(database, "main", &session));
    m_session.reset(session);
    int withoutKeys = 1; // as table Common is
    require(sqlite3session_object_config(session, SQLITE_SESSION_OBJCONFIG_ROWID, &withoutKeys));
    require(sqlite3session_attach(session, nullptr));
}

void ChangeRecorder::capture()
{
    int size = 0;
    void *bytes = nullptr;
    require(sqlite3session_changeset(m_session.get(), &size, &bytes));
    const auto release = qScopeGuard([bytes] { sqlite3_free(bytes); });
    const auto *first = static_cast<const char *>(bytes);
    if (size > 0)
        m_captured.emplace_back(first, first + size);
}

void ChangeRecorder::divide(sqlite3 *database)
{
    capture();
    follow(database);
}

void ChangeRecorder::keep()
{
    std::move(m_captured.begin(), m_captured.end(), std::back_inserter(m_committed));
    forget();
}

void ChangeRecorder::forget()
{
    m_session.reset();
    m_captured.clear();
}
