#include "app/updates/installation_steps.h"

#include "platform/system/file_descriptor.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace corvane {

namespace {

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
    while (true) {
        const auto count = ::sendfile(to, from, nullptr, piece);
        if (count == 0)
            return 0;
        if (count < 0 && errno != EINTR)
            return errno;
    }
}

} // namespace

int PosixInstallationSteps::takePermissions(int descriptor, const QByteArray &path)
{
    struct stat status = {};
    if (::stat(path.constData(), &status) != 0)
        return errno;
    return errorOf(::fchmod(descriptor, status.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO)));
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
    // The copy has a temporary name until it is whole.
    QByteArray unfinished = otherPath + ".XXXXXX";
    const FileDescriptor from(::open(path.constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW));
    if (!from.isOpen())
        return errno;
    const FileDescriptor to(::mkostemp(unfinished.data(), O_CLOEXEC));
    if (!to.isOpen())
        return errno;
    int outcome = copyBytes(from.number(), to.number());
    if (outcome == 0)
        outcome = takePermissions(to.number(), path);
    if (outcome == 0)
        outcome = sync(to.number());
    if (outcome == 0)
        outcome = moveToFreeName(unfinished, otherPath);
    if (outcome != 0)
        ::unlink(unfinished.constData());
    return outcome;
}

int PosixInstallationSteps::replace(const QByteArray &from, const QByteArray &to)
{
    return errorOf(::rename(from.constData(), to.constData()));
}

int PosixInstallationSteps::moveToFreeName(const QByteArray &from, const QByteArray &to)
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

int PosixInstallationSteps::remove(const QByteArray &path)
{
    return errorOf(::unlink(path.constData()));
}

} // namespace corvane
