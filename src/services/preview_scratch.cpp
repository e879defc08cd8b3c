#include "services/preview_scratch.h"

#include "platform/system/file_descriptor.h"

#include <QStringBuilder>
#include <QUuid>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

namespace corvane::preview_scratch {

namespace {

const QByteArray prefix = QByteArrayLiteral("Corvane-Preview-");

/// Somebody else's file may begin with the same word.
bool isScratchName(const QByteArray &name)
{
    constexpr qsizetype uuidLength = 36;
    if (!name.startsWith(prefix))
        return false;
    const QByteArray uuid = name.mid(prefix.size(), uuidLength);
    const QString text = QString::fromLatin1(uuid);
    return name.mid(prefix.size() + uuidLength).startsWith('.') && uuid == uuid.toUpper()
        && QUuid(text).toString(QUuid::WithoutBraces).toUpper() == text;
}

void removeIfLeftOver(const QByteArray &path)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    const FileDescriptor opened(::open(path.constData(), flags));
    struct stat status = {};
    if (opened.isOpen() && ::fstat(opened.number(), &status) == 0 && S_ISREG(status.st_mode)
        && status.st_uid == ::geteuid() && ::flock(opened.number(), LOCK_EX | LOCK_NB) == 0)
        ::unlink(path.constData());
}

} // namespace

QByteArray newPath(const QByteArray &folder, const QString &extension)
{
    const QString uuid = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    return folder + '/' + prefix + uuid.toLatin1() + '.' + extension.toUtf8();
}

void removeLeftovers(const QByteArray &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(folder.toStdString(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const QByteArray path = QByteArray::fromStdString(entry->path().native());
        if (isScratchName(path.mid(path.lastIndexOf('/') + 1)))
            removeIfLeftOver(path);
    }
}

} // namespace corvane::preview_scratch
