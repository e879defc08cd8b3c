#include "platform/system/private_file.h"

#include "platform/system/private_folder.h"

#include <QRandomGenerator>
#include <QStringBuilder>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace corvane::private_file {

namespace {

QByteArray folderOf(const QByteArray &path)
{
    return path.left(path.lastIndexOf('/'));
}

/// A new file with an unpredictable name, which is removed on destruction.
struct Unfinished {
    explicit Unfinished(const QByteArray &folder)
    {
        constexpr int hexadecimal = 16;
        name = folder + "/.unfinished-"
            + QByteArray::number(QRandomGenerator::system()->generate64(), hexadecimal);
        constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
        file = FileDescriptor(::open(name.constData(), flags, S_IRUSR | S_IWUSR));
        isMade = file.isOpen();
    }
    Unfinished(const Unfinished &) = delete;
    Unfinished &operator=(const Unfinished &) = delete;
    ~Unfinished()
    {
        if (isMade)
            ::unlink(name.constData());
    }

    QByteArray name;
    FileDescriptor file;
    bool isMade = false;
};

using Fill = std::function<bool(const FileDescriptor &file)>;

Fill writing(const QByteArray &data)
{
    return [&data](const FileDescriptor &file) { return file.write(data); };
}

/// Has the contents written and takes the lock. Closing a duplicate of the descriptor reports a
/// full disk.
bool complete(const FileDescriptor &file, const Fill &fill)
{
    if (!file.isOpen() || !fill(file) || ::flock(file.number(), LOCK_EX | LOCK_NB) != 0)
        return false;
    FileDescriptor other(::fcntl(file.number(), F_DUPFD_CLOEXEC, 0));
    return other.isOpen() && other.close();
}

/// Gives a file without a name one, unless the name is in use.
bool name(const FileDescriptor &file, const QByteArray &path)
{
    const QByteArray link = "/proc/self/fd/" + QByteArray::number(file.number());
    return ::linkat(AT_FDCWD, link.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW) == 0;
}

/// Renames a finished file, unless the name is in use.
bool moveInto(const QByteArray &from, const QByteArray &path)
{
    if (::link(from.constData(), path.constData()) == 0)
        return true;
    struct stat existing = {};
    // Not all file systems support hard links.
    return errno != EEXIST && ::lstat(path.constData(), &existing) != 0
        && ::rename(from.constData(), path.constData()) == 0;
}

FileDescriptor createFilled(const QByteArray &path, const Fill &fill)
{
    const QByteArray folder = folderOf(path);
    FileDescriptor nameless(
        ::open(folder.constData(), O_WRONLY | O_TMPFILE | O_CLOEXEC, S_IRUSR | S_IWUSR));
    if (nameless.isOpen()) {
        // Contents that cannot be made or written once cannot be a second time.
        if (!complete(nameless, fill))
            return {};
        if (name(nameless, path))
            return nameless;
        if (errno == EEXIST || errno == ENOSPC || errno == EDQUOT)
            return {};
    }
    // Not all file systems support files without names, and not all containers have /proc.
    Unfinished named(folder);
    if (!complete(named.file, fill) || !moveInto(named.name, path))
        return {};
    return std::move(named.file);
}

} // namespace

bool create(const QByteArray &path, const QByteArray &data)
{
    return createLocked(path, data).isOpen();
}

bool create(const QByteArray &path, const Fill &fill)
{
    return createFilled(path, fill).isOpen();
}

FileDescriptor createLocked(const QByteArray &path, const QByteArray &data)
{
    return createFilled(path, writing(data));
}

bool replace(const QByteArray &base, const QByteArray &folder, const QByteArray &name,
             const QByteArray &data)
{
    if (!private_folder::make(base, folder))
        return false;
    const Unfinished unfinished(folder);
    const QByteArray finished = folder + '/' + name;
    return complete(unfinished.file, writing(data))
        && ::rename(unfinished.name.constData(), finished.constData()) == 0;
}

} // namespace corvane::private_file
