#include "faultyfiles.h"

#include <sqlite3.h>

#include <map>

namespace faultyfiles {

namespace {

sqlite3_vfs *realFiles = nullptr;

struct
{
    bool isArmed = false;
    Fault fault = Fault::Busy;
    int countdown = 0;
    bool persists = false;
    bool struck = false;
} state;

/// What the system does with a file, but for the operations that may fail.
struct Methods
{
    sqlite3_io_methods faulty; ///< first, for an open file to lead to `real`
    const sqlite3_io_methods *real;
};

const sqlite3_io_methods &real(const sqlite3_file *file)
{
    return *reinterpret_cast<const Methods *>(file->pMethods)->real;
}

bool strikes()
{
    const bool strikes = state.countdown == 1 || (state.countdown <= 0 && state.persists);
    --state.countdown;
    state.struck = state.struck || strikes;
    return strikes;
}

/// The error for an operation that may fail so, SQLITE_OK where it is to go on.
int errorFor(Fault mayBe, int busyOrFull, int inputOutput)
{
    if (!state.isArmed)
        return SQLITE_OK;
    if (state.fault == Fault::InputOutput)
        return strikes() ? inputOutput : SQLITE_OK;
    return state.fault == mayBe && strikes() ? busyOrFull : SQLITE_OK;
}

int writeFile(sqlite3_file *file, const void *data, int size, sqlite3_int64 offset)
{
    const int error = errorFor(Fault::Full, SQLITE_FULL, SQLITE_IOERR_WRITE);
    return error ? error : real(file).xWrite(file, data, size, offset);
}
int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    const int error = errorFor(Fault::InputOutput, SQLITE_OK, SQLITE_IOERR_TRUNCATE);
    return error ? error : real(file).xTruncate(file, size);
}
int synchronizeFile(sqlite3_file *, int)
{
    return errorFor(Fault::InputOutput, SQLITE_OK, SQLITE_IOERR_FSYNC);
}
int lockFile(sqlite3_file *file, int level)
{
    const int error = errorFor(Fault::Busy, SQLITE_BUSY, SQLITE_IOERR_LOCK);
    return error ? error : real(file).xLock(file, level);
}

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    static std::map<const sqlite3_io_methods *, Methods> methods; // databases and journals differ
    const int result = realFiles->xOpen(realFiles, name, file, flags, outFlags);
    if (!file->pMethods)
        return result;
    auto &[faulty, original] = methods[file->pMethods];
    original = file->pMethods;
    faulty = *original;
    faulty.iVersion = 1; // no shared memory, no memory mapping
    faulty.xWrite = writeFile;
    faulty.xTruncate = truncateFile;
    faulty.xSync = synchronizeFile;
    faulty.xLock = lockFile;
    file->pMethods = &faulty;
    return result;
}

int deleteFile(sqlite3_vfs *, const char *name, int)
{
    const int error = errorFor(Fault::Unsynchronized, SQLITE_IOERR_DIR_FSYNC, SQLITE_IOERR_DELETE);
    if (error == SQLITE_IOERR_DELETE)
        return error;
    const int result = realFiles->xDelete(realFiles, name, 0);
    return error ? error : result;
}

// What waits for a lock that nobody holds need not take the time.
int sleep(sqlite3_vfs *, int microseconds)
{
    return microseconds;
}

} // namespace

void install()
{
    static sqlite3_vfs files;
    sqlite3_initialize();
#ifdef Q_OS_WIN
    realFiles = sqlite3_vfs_find("win32");
#else
    realFiles = sqlite3_vfs_find("unix");
#endif
    files = *realFiles;
    files.iVersion = 1;
    files.pNext = nullptr;
    files.zName = "faulty";
    files.xOpen = openFile;
    files.xDelete = deleteFile;
    files.xSleep = sleep;
    sqlite3_vfs_register(&files, 0);
    sqlite3mc_vfs_create(files.zName, 1);
}

void arm(Fault fault, int n, bool persists)
{
    state = {true, fault, n, persists, false};
}

bool disarm()
{
    state.isArmed = false;
    return state.struck;
}

} // namespace faultyfiles
