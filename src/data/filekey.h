// The key of the file: the built-in one, or one that is derived from the user's password.
#pragma once

class FilePassword;
struct sqlite3;

/// For a database that was opened and not read yet. All throw SQLite::Exception and StoreError.
namespace filekey {

/// The file's first bytes are a salt, which nothing encrypts. In a file that is locked they begin
/// with a mark, so that it is told from one that is damaged or no journal.
bool bearsLockMark(sqlite3 *database);

void useBuiltIn(sqlite3 *database);
/// The password that locks the file; throws StoreError, of the kind Locked, where it is another
/// one.
void use(sqlite3 *database, const FilePassword &password);
/// The same for a file that is still empty, with a new salt.
void useForNewFile(sqlite3 *database, const FilePassword &password);

} // namespace filekey
