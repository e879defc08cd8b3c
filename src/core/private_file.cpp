#include "core/private_file.h"

#include "platform/file_descriptor.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

namespace corvane::private_file {

namespace {

/// Gives a finished file its name, unless something has that name already.
bool moveInto(const QByteArray &from, const QByteArray &path)
{
    if (::link(from.constData(), path.constData()) == 0) {
        ::unlink(from.constData());
        return true;
    }
    struct stat existing = {};
    // Not every file system knows hard links.
    return errno != EEXIST && ::lstat(path.constData(), &existing) != 0
        && ::rename(from.constData(), path.constData()) == 0;
}

} // namespace

bool create(const QByteArray &path, const QByteArray &data)
{
    const QByteArray unfinished = path.left(path.lastIndexOf('/') + 1)
        + QByteArrayLiteral(".unfinished-") + QByteArray::number(::getpid());
    ::unlink(unfinished.constData());
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    FileDescriptor file(::open(unfinished.constData(), flags, S_IRUSR | S_IWUSR));
    if (!file.isOpen())
        return false;
    if (file.write(data) && file.close() && moveInto(unfinished, path))
        return true;
    ::unlink(unfinished.constData());
    return false;
}

} // namespace corvane::private_file
