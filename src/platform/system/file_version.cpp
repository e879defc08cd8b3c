#include "platform/system/file_version.h"

#include <sys/stat.h>

namespace corvane {

std::optional<FileVersion> FileVersion::at(const QByteArray &path)
{
    struct stat status = {};
    if (path.isEmpty() || path.contains('\0') || ::stat(path.constData(), &status) != 0)
        return std::nullopt;
    return of(path, status);
}

FileVersion FileVersion::of(const QByteArray &path, const struct stat &status)
{
    Kind kind = Kind::Other;
    if (S_ISREG(status.st_mode))
        kind = Kind::Regular;
    else if (S_ISDIR(status.st_mode))
        kind = Kind::Folder;
    return {path, kind, status.st_mtim.tv_sec, status.st_size};
}

} // namespace corvane
