#include "app/updates/update_file.h"

#include "platform/system/regular_file.h"

#include <QStringBuilder>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <utility>

namespace corvane {

namespace {

/// A process holds the lock of its own file: one without a lock was left by a process that died.
void removeIfLeftOver(const QByteArray &path)
{
    const FileDescriptor opened = regular_file::open(path);
    struct stat status = {};
    if (opened.isOpen() && ::fstat(opened.number(), &status) == 0 && status.st_uid == ::geteuid()
        && ::flock(opened.number(), LOCK_EX | LOCK_NB) == 0)
        ::unlink(path.constData());
}

/// So that a full disk is noticed before the download. Not every file system can do it.
bool setRoomAside(int descriptor, qint64 length)
{
    return ::fallocate(descriptor, FALLOC_FL_KEEP_SIZE, 0, length) == 0
        || (errno != ENOSPC && errno != EFBIG && errno != EDQUOT);
}

} // namespace

void UpdateFile::removeLeftovers(const QByteArray &folder)
{
    std::error_code error;
    std::filesystem::directory_iterator entry(folder.toStdString(), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        const QByteArray path = QByteArray::fromStdString(entry->path().native());
        if (path.mid(path.lastIndexOf('/') + 1).startsWith(temporaryPrefix))
            removeIfLeftOver(path);
    }
}

std::unique_ptr<UpdateFile> UpdateFile::make(const QByteArray &folder, qint64 length, int &error)
{
    // The downloads folder may never have been used.
    ::mkdir(folder.constData(), S_IRWXU);
    removeLeftovers(folder);
    QByteArray path = folder + '/' + temporaryPrefix + "XXXXXX";
    FileDescriptor made(::mkostemp(path.data(), O_CLOEXEC));
    if (!made.isOpen()) {
        error = errno;
        return nullptr;
    }
    std::unique_ptr<UpdateFile> file(new UpdateFile(std::move(made), path));
    if (::flock(file->descriptor(), LOCK_EX | LOCK_NB) == 0
        && setRoomAside(file->descriptor(), length))
        return file;
    error = errno;
    return nullptr;
}

UpdateFile::UpdateFile(FileDescriptor descriptor, QByteArray path)
    : m_descriptor(std::move(descriptor))
    , m_path(std::move(path))
{
}

UpdateFile::~UpdateFile()
{
    ::unlink(m_path.constData());
}

bool UpdateFile::append(const QByteArray &bytes)
{
    if (!m_descriptor.write(bytes)) {
        m_error = errno;
        return false;
    }
    m_size += bytes.size();
    return true;
}

} // namespace corvane
