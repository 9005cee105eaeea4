// The rollback journal that a store cut short leaves beside the file.
#pragma once

#include "data/filepassword.h"

#include <QString>

enum class PendingRollback
{
    None,    ///< no store was cut short
    Sound,   ///< opening the file will undo the store and leave it whole
    Foreign, ///< the rollback journal was written for another state of the file: undoing with it
             ///< would mix the two
    Damaged, ///< the file is not whole, with the store undone or without
    Locked,  ///< the password does not open the file
    Untried  ///< no room for the copy on which it is tried
};

/// What opening the database file would do to it, tried on a copy: the file and its rollback
/// journal stay as they are. To be asked before the file is opened.
PendingRollback examineRollback(const QString &path, const FilePassword &password = {});
