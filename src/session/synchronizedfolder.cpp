#include "session/synchronizedfolder.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

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

bool makeSynchronizedFolder(const QString &folder)
{
    if (QDir(folder).exists())
        return true;
    const QString above = QFileInfo(folder).path();
    if (!makeSynchronizedFolder(above))
        return false;
    const auto owner = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    // Another program may make it at the same moment.
    return (QDir().mkdir(folder, owner) || QDir(folder).exists()) && synchronizeFolder(above);
}

bool copySynchronized(const QString &from, const QString &to)
{
    QFile original(from);
    QSaveFile copy(to);
    return original.open(QIODevice::ReadOnly) && copy.open(QIODevice::WriteOnly) &&
           copy.write(original.readAll()) >= 0 && original.error() == QFileDevice::NoError &&
           copy.commit() && synchronizeFolder(QFileInfo(to).absolutePath());
}
