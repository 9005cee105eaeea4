// What stands in a folder, kept through a power failure.
#pragma once

#include <QString>

/// Puts the names in a folder on the disk: without it a power failure could bring back a file that
/// was replaced, or lose a new one. False where the disk reports an error. On Windows, where a
/// folder can't be synchronized, it does nothing and is true.
bool synchronizeFolder(const QString &folder);
