#include "faultyfiles.h"

#include <sqlite3.h>

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

/// An open file, followed in memory by the one of the system.
struct File
{
    sqlite3_file base;
    sqlite3_file *real() { return reinterpret_cast<sqlite3_file *>(this + 1); }
};

File &of(sqlite3_file *file)
{
    return *reinterpret_cast<File *>(file);
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

int closeFile(sqlite3_file *file)
{
    return of(file).real()->pMethods->xClose(of(file).real());
}
int readFile(sqlite3_file *file, void *data, int size, sqlite3_int64 offset)
{
    return of(file).real()->pMethods->xRead(of(file).real(), data, size, offset);
}
int writeFile(sqlite3_file *file, const void *data, int size, sqlite3_int64 offset)
{
    const int error = errorFor(Fault::Full, SQLITE_FULL, SQLITE_IOERR_WRITE);
    return error ? error : of(file).real()->pMethods->xWrite(of(file).real(), data, size, offset);
}
int truncateFile(sqlite3_file *file, sqlite3_int64 size)
{
    const int error = errorFor(Fault::InputOutput, SQLITE_OK, SQLITE_IOERR_TRUNCATE);
    return error ? error : of(file).real()->pMethods->xTruncate(of(file).real(), size);
}
int synchronizeFile(sqlite3_file *, int)
{
    return errorFor(Fault::InputOutput, SQLITE_OK, SQLITE_IOERR_FSYNC);
}
int fileSize(sqlite3_file *file, sqlite3_int64 *size)
{
    return of(file).real()->pMethods->xFileSize(of(file).real(), size);
}
int lockFile(sqlite3_file *file, int level)
{
    const int error = errorFor(Fault::Busy, SQLITE_BUSY, SQLITE_IOERR_LOCK);
    return error ? error : of(file).real()->pMethods->xLock(of(file).real(), level);
}
int unlockFile(sqlite3_file *file, int level)
{
    return of(file).real()->pMethods->xUnlock(of(file).real(), level);
}
int checkReservedLock(sqlite3_file *file, int *result)
{
    return of(file).real()->pMethods->xCheckReservedLock(of(file).real(), result);
}
int controlFile(sqlite3_file *file, int operation, void *argument)
{
    return of(file).real()->pMethods->xFileControl(of(file).real(), operation, argument);
}
int sectorSize(sqlite3_file *file)
{
    return of(file).real()->pMethods->xSectorSize(of(file).real());
}
int deviceCharacteristics(sqlite3_file *file)
{
    return of(file).real()->pMethods->xDeviceCharacteristics(of(file).real());
}

int openFile(sqlite3_vfs *, const char *name, sqlite3_file *file, int flags, int *outFlags)
{
    static const sqlite3_io_methods methods = [] {
        sqlite3_io_methods made = {};
        made.iVersion = 1; // no shared memory, no memory mapping
        made.xClose = closeFile;
        made.xRead = readFile;
        made.xWrite = writeFile;
        made.xTruncate = truncateFile;
        made.xSync = synchronizeFile;
        made.xFileSize = fileSize;
        made.xLock = lockFile;
        made.xUnlock = unlockFile;
        made.xCheckReservedLock = checkReservedLock;
        made.xFileControl = controlFile;
        made.xSectorSize = sectorSize;
        made.xDeviceCharacteristics = deviceCharacteristics;
        return made;
    }();
    const int result = realFiles->xOpen(realFiles, name, of(file).real(), flags, outFlags);
    file->pMethods = of(file).real()->pMethods ? &methods : nullptr;
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

} // namespace

void install()
{
    static sqlite3_vfs files;
    sqlite3_initialize();
    realFiles = sqlite3_vfs_find("unix");
    files = *realFiles;
    files.iVersion = 1;
    files.szOsFile = static_cast<int>(sizeof(File)) + realFiles->szOsFile;
    files.pNext = nullptr;
    files.zName = "faulty";
    files.xOpen = openFile;
    files.xDelete = deleteFile;
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
