// Files and folders that are kept through a power failure.
#pragma once

#include <QString>

/// Puts the names in a folder on the disk: without it a power failure could bring back a file that
/// was replaced, or lose a new one. False where the disk reports an error. On Windows, where a
/// folder can't be synchronized, it does nothing and is true.
bool synchronizeFolder(const QString &folder);

/// Makes a folder that only the user may enter, and those above it that are missing. True where it
/// is there in the end.
bool makeSynchronizedFolder(const QString &folder);

/// Copies a file over another or none: it comes whole or not at all, and is on the disk when this
/// returns true.
bool copySynchronized(const QString &from, const QString &to);
