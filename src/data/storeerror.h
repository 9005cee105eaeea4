// The one exception of the store.
#pragma once

#include <stdexcept>
#include <string>

namespace SQLite {
class Exception;
}

/// What the database engine refused, and why. The data are as they were before the refused change,
/// unless the kind is Uncertain.
class StoreError : public std::runtime_error
{
public:
    enum class Kind
    {
        NameTaken,         ///< a unique name is already in the table
        ReferenceRefused,  ///< other records refer to this one, or it refers to none
        Busy,              ///< another program holds the file beyond the time-out
        Full,              ///< no room on the disk
        InputOutput,       ///< the disk reported an error
        Uncertain,         ///< the disk reported one when all was written: it may be stored
        ReadOnly,          ///< the file or its folder can't be written
        Damaged,           ///< not a database of this program, or a broken one
        Locked,            ///< with a password of the user's, and not with the one at hand
        Replaced,          ///< another file has taken the place of the one that is open
        Gone,              ///< the record was deleted meanwhile
        Changed,           ///< another program changed the record since it was read
        ParametersChanged, ///< or the common parameters
        Other
    };

    StoreError(Kind kind, const std::string &what)
        : std::runtime_error(what)
        , m_kind(kind)
    {
    }
    explicit StoreError(const SQLite::Exception &error);

    Kind kind() const { return m_kind; }

private:
    Kind m_kind;
};
