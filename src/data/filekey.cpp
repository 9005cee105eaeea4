#include "data/filekey.h"

#include "data/filepassword.h"
#include "data/storeerror.h"

#include <QByteArray>
#include <QRandomGenerator>

#include <SQLiteCpp/Exception.h>
#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace {

// The password is no secret: it keeps the file from being read or changed by accident, and makes
// every page carry an authentication code. Stretching a public key buys nothing, so the key
// derivation runs once only, which opens the file in about a millisecond. README tells how other
// tools open it.
constexpr char builtIn[] = "PRAGMA cipher='sqlcipher';"
                           "PRAGMA legacy=3;"
                           "PRAGMA legacy_page_size=4096;"
                           "PRAGMA kdf_iter=1;"
                           "PRAGMA key='qmvzr271';";

// The fourth version of the scheme: 256000 rounds of PBKDF2-HMAC-SHA512, pages authenticated by
// HMAC-SHA512.
constexpr char derived[] = "PRAGMA cipher='sqlcipher';"
                           "PRAGMA legacy=4;";

constexpr int pageSize = 4096;
constexpr int saltSize = 16;
// The other twelve bytes of the salt are random.
constexpr std::array lockMark = {'L', 'o', 'c', 'k'};

void execute(sqlite3 *database, const char *sql)
{
    const int result = sqlite3_exec(database, sql, nullptr, nullptr, nullptr);
    if (result != SQLITE_OK)
        throw SQLite::Exception(database, result);
}

sqlite3_file *fileOf(sqlite3 *database)
{
    sqlite3_file *file = nullptr;
    const int result = sqlite3_file_control(database, "main", SQLITE_FCNTL_FILE_POINTER, &file);
    if (result != SQLITE_OK || !file || !file->pMethods)
        throw StoreError(StoreError::Kind::InputOutput, "the file can't be read");
    return file;
}

// Of a file whose first page is damaged another one tells whether the password is right.
bool opensSomePage(sqlite3 *database)
{
    constexpr int mostPages = 256;
    sqlite3_file *const file = fileOf(database);
    std::array<char, pageSize> page{};
    for (int i = 0; i < mostPages; ++i) {
        const int result =
            file->pMethods->xRead(file, page.data(), pageSize, sqlite3_int64(i) * pageSize);
        if (result == SQLITE_OK)
            return true;
        if (result == SQLITE_IOERR_SHORT_READ)
            return false;
    }
    return false;
}

void derive(sqlite3 *database, const FilePassword &password)
{
    const std::string_view bytes = password.bytes();
    const int result = sqlite3_key_v2(database, "main", bytes.data(), int(bytes.size()));
    if (result != SQLITE_OK)
        throw SQLite::Exception(database, result);
}

} // namespace

bool filekey::bearsLockMark(sqlite3 *database)
{
    sqlite3_file *const file = fileOf(database);
    std::array<char, saltSize> salt{};
    return file->pMethods->xRead(file, salt.data(), saltSize, 0) == SQLITE_OK &&
           std::equal(lockMark.begin(), lockMark.end(), salt.begin());
}

void filekey::useBuiltIn(sqlite3 *database)
{
    execute(database, builtIn);
}

void filekey::use(sqlite3 *database, const FilePassword &password)
{
    if (!password.isEmpty() && !password.isTakenForKey()) {
        execute(database, derived);
        derive(database, password);
        if (opensSomePage(database))
            return;
    }
    throw StoreError(StoreError::Kind::Locked, "the file is locked with another password");
}

void filekey::useForNewFile(sqlite3 *database, const FilePassword &password)
{
    if (password.isTakenForKey())
        throw StoreError(StoreError::Kind::Other, "the password would be taken for a key");
    std::array<quint32, (saltSize - lockMark.size()) / sizeof(quint32)> random{};
    QRandomGenerator::system()->fillRange(random.data(), qsizetype(random.size()));
    const QByteArray salt =
        QByteArray(lockMark.data(), qsizetype(lockMark.size())) +
        QByteArray(reinterpret_cast<const char *>(random.data()), qsizetype(sizeof random));
    execute(database, derived);
    execute(database, ("PRAGMA cipher_salt='" + salt.toHex() + "'").constData());
    derive(database, password);
}
