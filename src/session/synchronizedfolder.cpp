#include "session/synchronizedfolder.h"

#include <QFile>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <unistd.h>
#endif

bool synchronizeFolder(const QString &folder)
{
#ifdef Q_OS_UNIX
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    const bool isDone = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return isDone;
#else
    Q_UNUSED(folder)
    return true;
#endif
}
