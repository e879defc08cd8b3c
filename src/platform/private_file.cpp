#include "platform/private_file.h"

#include "platform/file_descriptor.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

namespace corvane::private_file {

namespace {

QByteArray unfinishedName(const QByteArray &folder)
{
    static std::atomic<unsigned> count = 0;
    return folder + "/.unfinished-" + QByteArray::number(::getpid()) + '-'
        + QByteArray::number(count++);
}

bool write(const QByteArray &path, const QByteArray &data)
{
    // Of a process that had this number before.
    ::unlink(path.constData());
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    FileDescriptor file(::open(path.constData(), flags, S_IRUSR | S_IWUSR));
    return file.isOpen() && file.write(data) && file.close();
}

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

bool makeFolders(const QByteArray &base, const QByteArray &folder)
{
    const QByteArray way = folder + '/';
    for (qsizetype end = base.size(); end >= 0; end = way.indexOf('/', end + 1)) {
        if (::mkdir(way.first(end).constData(), S_IRWXU) != 0 && errno != EEXIST)
            return false;
    }
    return true;
}

} // namespace

bool create(const QByteArray &path, const QByteArray &data)
{
    const QByteArray unfinished = unfinishedName(path.left(path.lastIndexOf('/')));
    if (write(unfinished, data) && moveInto(unfinished, path))
        return true;
    ::unlink(unfinished.constData());
    return false;
}

bool replace(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
             const QByteArray &data)
{
    if (!makeFolders(base, folder))
        return false;
    const QByteArray unfinished = unfinishedName(folder);
    const QByteArray finished = folder + '/' + name;
    if (write(unfinished, data) && ::rename(unfinished.constData(), finished.constData()) == 0)
        return true;
    ::unlink(unfinished.constData());
    return false;
}

} // namespace corvane::private_file
