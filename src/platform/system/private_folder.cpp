#include "platform/system/private_folder.h"

#include "platform/system/file_descriptor.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace corvane::private_folder {

namespace {

bool isSafe(int descriptor)
{
    struct stat status = {};
    return ::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)
        && status.st_uid == ::geteuid() && (status.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

} // namespace

int openAndLock(const QByteArray &path)
{
    constexpr int flags = O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC;
    const int descriptor = ::open(path.constData(), flags);
    if (descriptor < 0)
        return -1;
    // Between opening and locking, another process may have removed or renamed the folder.
    const bool isOurs = isSafe(descriptor) && ::flock(descriptor, LOCK_EX | LOCK_NB) == 0
        && isAt(path, descriptor);
    if (isOurs)
        return descriptor;
    ::close(descriptor);
    return -1;
}

bool isAt(const QByteArray &path, int descriptor)
{
    struct stat named = {};
    struct stat opened = {};
    return ::lstat(path.constData(), &named) == 0 && ::fstat(descriptor, &opened) == 0
        && named.st_dev == opened.st_dev && named.st_ino == opened.st_ino;
}

bool make(const QByteArray &base, const QByteArray &folder)
{
    const QByteArray way = folder + '/';
    for (qsizetype end = base.size(); end >= 0; end = way.indexOf('/', end + 1)) {
        const QByteArray made = way.first(end);
        if (::mkdir(made.constData(), S_IRWXU) == 0)
            sync(made.first(made.lastIndexOf('/') + 1));
        else if (errno != EEXIST)
            return false;
    }
    return true;
}

void sync(const QByteArray &path)
{
    const FileDescriptor folder(::open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.isOpen())
        ::fsync(folder.number());
}

} // namespace corvane::private_folder
