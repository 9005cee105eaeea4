#include "data/storeerror.h"

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

namespace {

StoreError::Kind kindOf(const SQLite::Exception &error)
{
    switch (error.getExtendedErrorCode()) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
        return StoreError::Kind::NameTaken;
    case SQLITE_CONSTRAINT_FOREIGNKEY:
        return StoreError::Kind::ReferenceRefused;
    // Only the deletion of the rollback journal, the last step of a commit, ends this way.
    case SQLITE_IOERR_DIR_FSYNC:
        return StoreError::Kind::Uncertain;
    case SQLITE_READONLY_DBMOVED:
        return StoreError::Kind::Replaced;
    default:
        break;
    }
    // Of what is raised by hand the code may be an extended one itself.
    constexpr int plainCode = 0xff;
    switch (error.getErrorCode() & plainCode) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return StoreError::Kind::Busy;
    case SQLITE_FULL:
        return StoreError::Kind::Full;
    case SQLITE_IOERR:
        return StoreError::Kind::InputOutput;
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
        return StoreError::Kind::ReadOnly;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        return StoreError::Kind::Damaged;
    default:
        return StoreError::Kind::Other;
    }
}

} // namespace

StoreError::StoreError(const SQLite::Exception &error)
    : std::runtime_error(error.what())
    , m_kind(kindOf(error))
{
}
