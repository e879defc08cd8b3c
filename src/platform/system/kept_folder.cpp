#include "platform/system/kept_folder.h"

#include "platform/system/private_folder.h"

#include <QRandomGenerator>
#include <QStringBuilder>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <utility>

namespace corvane {

namespace {

constexpr const char *recordName = "items";
constexpr const char *unfinishedRecordName = "items.unfinished";
constexpr int hexadecimal = 16;
/// How much is copied between two looks at the time.
constexpr qint64 pieceBytes = 262'144;
constexpr qint64 piecesBetweenWaits = 32;

bool isHexadecimal(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
}

bool isPlain(const QByteArray &extension)
{
    constexpr qsizetype longest = 16;
    return !extension.isEmpty() && extension.size() <= longest
        && std::ranges::all_of(extension, [](char c) {
               return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
           });
}

/// Whether the folder gives such names: nothing that leads out of it, nor the record's.
bool isOwnName(const QByteArray &name)
{
    const qsizetype dot = name.indexOf('.');
    const QByteArray number = name.first(dot < 0 ? name.size() : dot);
    return number.size() == hexadecimal && std::ranges::all_of(number, isHexadecimal)
        && (dot < 0 || isPlain(name.mid(dot + 1)));
}

QByteArray newName(const QByteArray &extension)
{
    const QByteArray number
        = QByteArray::number(QRandomGenerator::system()->generate64(), hexadecimal)
              .rightJustified(hexadecimal, '0');
    return isPlain(extension) ? QByteArray(number + '.' + extension) : number;
}

/// Opens a regular file, no link to one. Not blocking: it may be a pipe that nobody writes to.
FileDescriptor openRegular(int folder, const QByteArray &name, struct stat &status)
{
    constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    FileDescriptor file(::openat(folder, name.constData(), flags));
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    return file;
}

/// The same for a file of this user.
FileDescriptor openOwn(int folder, const QByteArray &name, struct stat &status)
{
    FileDescriptor file = openRegular(folder, name, status);
    if (!file.isOpen() || status.st_uid != ::geteuid())
        return {};
    return file;
}

/// Hands over `size` bytes in pieces. False if there are fewer or more, or `take` says so.
template<typename Take>
bool readWhole(const FileDescriptor &file, qint64 size, Take take)
{
    QByteArray buffer(std::min(size + 1, pieceBytes), Qt::Uninitialized);
    qint64 taken = 0;
    while (true) {
        const ssize_t count
            = ::read(file.number(), buffer.data(), static_cast<std::size_t>(buffer.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return count == 0 && taken == size;
        taken += count;
        if (taken > size || !take(QByteArray::fromRawData(buffer.constData(), count)))
            return false;
    }
}

bool isOnDisk(const FileDescriptor &file)
{
    return file.isOpen() && ::fsync(file.number()) == 0;
}

} // namespace

KeptFolder::KeptFolder(QByteArray path)
    : m_path(std::move(path))
{
}

QByteArray KeptFolder::environmentPath()
{
    QByteArray base = qgetenv("XDG_DATA_HOME");
    if (!base.startsWith('/'))
        base = qgetenv("HOME") + "/.local/share";
    return base + "/corvane/kept";
}

QByteArray KeptFolder::pathOf(const QByteArray &name) const
{
    return m_path + '/' + name;
}

bool KeptFolder::contains(const QByteArray &path) const
{
    return path.size() > m_path.size() && path.startsWith(m_path) && path[m_path.size()] == '/';
}

bool KeptFolder::isHeld() const
{
    return m_folder.isOpen() && private_folder::isAt(m_path, m_folder.number());
}

bool KeptFolder::isThere() const
{
    struct stat status = {};
    return ::lstat(m_path.constData(), &status) == 0;
}

bool KeptFolder::hold()
{
    if (isHeld())
        return true;
    m_folder = FileDescriptor(private_folder::openAndLock(m_path));
    return m_folder.isOpen();
}

bool KeptFolder::makeAndHold()
{
    return hold() || (private_folder::make("/", m_path) && hold());
}

void KeptFolder::release()
{
    m_folder.close();
    m_added.clear();
}

bool KeptFolder::hasRecord() const
{
    struct stat status = {};
    return ::fstatat(m_folder.number(), recordName, &status, AT_SYMLINK_NOFOLLOW) == 0;
}

std::optional<QByteArray> KeptFolder::record(qint64 limit) const
{
    struct stat status = {};
    const FileDescriptor file = openOwn(m_folder.number(), recordName, status);
    if (!file.isOpen() || status.st_size > limit)
        return std::nullopt;
    QByteArray record;
    record.reserve(status.st_size);
    const auto append = [&record](const QByteArray &piece) {
        record += piece;
        return true;
    };
    return readWhole(file, status.st_size, append) ? std::optional(record) : std::nullopt;
}

bool KeptFolder::has(const File &file) const
{
    struct stat status = {};
    return isOwnName(file.name) && openOwn(m_folder.number(), file.name, status).isOpen()
        && status.st_size == file.size;
}

FileDescriptor KeptFolder::create(QByteArray &name, const QByteArray &extension) const
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    name = newName(extension);
    return FileDescriptor(::openat(m_folder.number(), name.constData(), flags, S_IRUSR | S_IWUSR));
}

/// Gives the file a name here, too. Only one that has a single name: a program that writes to it
/// under another one would change what is kept.
bool KeptFolder::linkInto(const QByteArray &path, const FileDescriptor &source,
                          const QByteArray &extension, QByteArray &name) const
{
    struct stat opened = {};
    struct stat linked = {};
    name = newName(extension);
    if (::fstat(source.number(), &opened) != 0 || opened.st_uid != ::geteuid()
        || opened.st_nlink != 1 || ::fchmod(source.number(), S_IRUSR | S_IWUSR) != 0
        || ::linkat(AT_FDCWD, path.constData(), m_folder.number(), name.constData(), 0) != 0)
        return false;
    const bool isSame
        = ::fstatat(m_folder.number(), name.constData(), &linked, AT_SYMLINK_NOFOLLOW) == 0
        && linked.st_dev == opened.st_dev && linked.st_ino == opened.st_ino;
    if (!isSame)
        ::unlinkat(m_folder.number(), name.constData(), 0);
    return isSame;
}

std::optional<KeptFolder::File> KeptFolder::add(const QByteArray &path, const QByteArray &extension,
                                                const std::function<bool()> &isTimeLeft)
{
    struct stat status = {};
    const FileDescriptor source = openRegular(AT_FDCWD, path, status);
    if (!source.isOpen())
        return std::nullopt;
    QByteArray name;
    if (!linkInto(path, source, extension, name)) {
        FileDescriptor to = create(name, extension);
        qint64 pieces = 0;
        // The disk is waited for now and then, or there would seem to be time for more than it
        // takes.
        const auto write = [&](const QByteArray &piece) {
            return isTimeLeft() && to.write(piece)
                && (++pieces % piecesBetweenWaits != 0 || ::fdatasync(to.number()) == 0);
        };
        if (!to.isOpen())
            return std::nullopt;
        if (!readWhole(source, status.st_size, write) || !to.close()) {
            ::unlinkat(m_folder.number(), name.constData(), 0);
            return std::nullopt;
        }
    }
    m_added.insert(name);
    return File{name, status.st_size};
}

std::optional<KeptFolder::File> KeptFolder::addBytes(const QByteArray &bytes,
                                                     const QByteArray &extension)
{
    QByteArray name;
    FileDescriptor to = create(name, extension);
    if (!to.isOpen())
        return std::nullopt;
    if (!to.write(bytes) || !to.close()) {
        ::unlinkat(m_folder.number(), name.constData(), 0);
        return std::nullopt;
    }
    m_added.insert(name);
    return File{name, bytes.size()};
}

/// Together at the end: the first of them takes most of the others along.
bool KeptFolder::syncAdded() const
{
    struct stat status = {};
    return std::ranges::all_of(m_added, [&](const QByteArray &name) {
        return isOnDisk(openRegular(m_folder.number(), name, status));
    });
}

bool KeptFolder::writeRecord(const QByteArray &record) const
{
    constexpr int flags = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    const int folder = m_folder.number();
    ::unlinkat(folder, unfinishedRecordName, 0);
    FileDescriptor file(::openat(folder, unfinishedRecordName, flags, S_IRUSR | S_IWUSR));
    const bool isWritten = file.isOpen() && file.write(record) && isOnDisk(file)
        && ::fsync(folder) == 0 && file.close();
    return isWritten && ::renameat(folder, unfinishedRecordName, folder, recordName) == 0;
}

bool KeptFolder::rewrite(const QByteArray &record)
{
    return writeRecord(record);
}

bool KeptFolder::commit(const QByteArray &record, const QSet<QByteArray> &names)
{
    const bool isWritten = syncAdded() && writeRecord(record);
    if (isWritten) {
        ::fsync(m_folder.number());
        sweep(names);
    } else {
        ::unlinkat(m_folder.number(), unfinishedRecordName, 0);
        for (const QByteArray &name : std::as_const(m_added))
            ::unlinkat(m_folder.number(), name.constData(), 0);
    }
    m_added.clear();
    return isWritten;
}

void KeptFolder::sweep(const QSet<QByteArray> &names)
{
    const auto closeDirectory = [](DIR *directory) { ::closedir(directory); };
    const std::unique_ptr<DIR, decltype(closeDirectory)> directory(::opendir(m_path.constData()),
                                                                   closeDirectory);
    while (const dirent *entry = directory ? ::readdir(directory.get()) : nullptr) {
        const QByteArray name(&entry->d_name[0]);
        if (isOwnName(name) && !names.contains(name))
            ::unlinkat(m_folder.number(), name.constData(), 0);
    }
}

void KeptFolder::forget()
{
    ::unlinkat(m_folder.number(), recordName, 0);
}

void KeptFolder::empty()
{
    forget();
    ::unlinkat(m_folder.number(), unfinishedRecordName, 0);
    sweep({});
    ::fsync(m_folder.number());
    ::rmdir(m_path.constData());
}

bool KeptFolder::copy(const QByteArray &path, qint64 size, const FileDescriptor &to)
{
    struct stat status = {};
    const FileDescriptor from = openOwn(AT_FDCWD, path, status);
    return from.isOpen() && status.st_size == size
        && readWhole(from, size, [&to](const QByteArray &piece) { return to.write(piece); });
}

void KeptFolder::remove(const QByteArray &path)
{
    ::unlink(path.constData());
}

} // namespace corvane
