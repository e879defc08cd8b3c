#include "app/updates/installation_steps.h"

#include "app/updates/update_file.h"
#include "platform/system/file_descriptor.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/file.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace corvane {

namespace {

constexpr mode_t permissionBits = S_IRWXU | S_IRWXG | S_IRWXO;

int errorOf(int result)
{
    return result == 0 ? 0 : errno;
}

bool hasNoSecondNames(int error)
{
    return error == EPERM || error == EOPNOTSUPP || error == ENOSYS || error == EMLINK
        || error == EXDEV;
}

int copyBytes(int from, int to)
{
    constexpr std::size_t piece = 1024UL * 1024;
    off_t at = 0;
    while (true) {
        // Reads where `at` says, so that it does not matter how far the file was read before.
        const auto count = ::sendfile(to, from, &at, piece);
        if (count == 0)
            return 0;
        if (count < 0 && errno != EINTR)
            return errno;
    }
}

/// Fails where the name is taken.
int moveToFreeName(const QByteArray &from, const QByteArray &to)
{
    const int error = errorOf(
        ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE));
    if (error != EINVAL && error != ENOSYS)
        return error;
    // The file system has no RENAME_NOREPLACE; a second name fails where it is taken, too.
    if (const int linked = errorOf(::link(from.constData(), to.constData())); linked != 0)
        return linked;
    return errorOf(::unlink(from.constData()));
}

/// A copy of an open file, which has the name only once it is whole. Until then its name is one of
/// those that the next start removes.
int copy(int from, const QByteArray &path)
{
    struct stat status = {};
    if (::fstat(from, &status) != 0)
        return errno;
    QByteArray unfinished
        = path.left(path.lastIndexOf('/') + 1) + UpdateFile::temporaryPrefix + "XXXXXX";
    const FileDescriptor to(::mkostemp(unfinished.data(), O_CLOEXEC));
    if (!to.isOpen())
        return errno;
    int error = errorOf(::flock(to.number(), LOCK_EX | LOCK_NB));
    if (error == 0)
        error = copyBytes(from, to.number());
    if (error == 0)
        error = errorOf(::fchmod(to.number(), status.st_mode & permissionBits));
    if (error == 0)
        error = errorOf(::fsync(to.number()));
    if (error == 0)
        error = moveToFreeName(unfinished, path);
    if (error != 0)
        ::unlink(unfinished.constData());
    return error;
}

} // namespace

int PosixInstallationSteps::takePermissions(int descriptor, const QByteArray &path)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return errno;
    return errorOf(::fchmod(descriptor, status.st_mode & permissionBits));
}

int PosixInstallationSteps::sync(int descriptor)
{
    return errorOf(::fsync(descriptor));
}

int PosixInstallationSteps::syncFolder(const QByteArray &folder)
{
    const FileDescriptor opened(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!opened.isOpen())
        return errno;
    // EINVAL: a file system that has nothing to sync for a folder.
    return ::fsync(opened.number()) == 0 || errno == EINVAL ? 0 : errno;
}

int PosixInstallationSteps::keep(const QByteArray &path, const QByteArray &otherPath)
{
    const int error = errorOf(::link(path.constData(), otherPath.constData()));
    if (!hasNoSecondNames(error))
        return error;
    const FileDescriptor from(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    return from.isOpen() ? copy(from.number(), otherPath) : errno;
}

int PosixInstallationSteps::giveName(int descriptor, const QByteArray &path)
{
    const QByteArray opened = "/proc/self/fd/" + QByteArray::number(descriptor);
    const int error = errorOf(
        ::linkat(AT_FDCWD, opened.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW));
    // ENOENT: somebody removed the file's last name, and it cannot have one any more.
    return hasNoSecondNames(error) || error == ENOENT ? copy(descriptor, path) : error;
}

int PosixInstallationSteps::replace(const QByteArray &from, const QByteArray &to)
{
    return errorOf(::rename(from.constData(), to.constData()));
}

int PosixInstallationSteps::remove(const QByteArray &path)
{
    return errorOf(::unlink(path.constData()));
}

} // namespace corvane
