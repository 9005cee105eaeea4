// Permissions don't bind root, whom builds in containers often run as: a test of them steps down.
#pragma once

#include <QString>

#include <sys/stat.h>
#include <unistd.h>

/// While it lives, this process is nobody; a process that was not root stays what it is.
class Unprivileged
{
public:
    static constexpr uid_t nobody = 65534;

    Unprivileged()
        : m_wasRoot(geteuid() == 0)
    {
        // Root remains the saved user, to whom the way back is open.
        if (m_wasRoot && setresuid(nobody, nobody, 0) != 0)
            qFatal("this process can't step down from root");
    }
    ~Unprivileged()
    {
        if (m_wasRoot && setresuid(0, 0, 0) != 0)
            qFatal("this process can't become root again");
    }
    Unprivileged(const Unprivileged &) = delete;
    Unprivileged &operator=(const Unprivileged &) = delete;

private:
    bool m_wasRoot;
};

/// Sets the permissions, and makes nobody the owner where this process is root.
inline void setOwnPermissions(const QString &path, mode_t mode)
{
    const QByteArray name = path.toLocal8Bit();
    if (geteuid() == 0 && chown(name.constData(), Unprivileged::nobody, gid_t(-1)) != 0)
        qFatal("%s can't be given away", name.constData());
    if (chmod(name.constData(), mode) != 0)
        qFatal("the permissions of %s can't be set", name.constData());
}
