#include "platform/freedesktop/thumbnails/private_cache_file.h"

#include "platform/file_descriptor.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

namespace corvane::private_cache_file {

namespace {

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

bool write(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
           const QByteArray &data)
{
    static std::atomic<unsigned> count = 0;
    if (!makeFolders(base, folder))
        return false;
    const QByteArray unfinished = folder + "/." + name + '.' + QByteArray::number(::getpid()) + '-'
        + QByteArray::number(count++);
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    FileDescriptor file(::open(unfinished.constData(), flags, S_IRUSR | S_IWUSR));
    if (!file.isOpen())
        return false;
    const QByteArray finished = folder + '/' + name;
    if (file.write(data) && file.close()
        && ::rename(unfinished.constData(), finished.constData()) == 0)
        return true;
    ::unlink(unfinished.constData());
    return false;
}

} // namespace corvane::private_cache_file
