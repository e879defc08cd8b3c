#include "core/spool_directory.h"

#include "platform/system/private_folder.h"

#include <QRandomGenerator>
#include <QStringBuilder>

#include <dirent.h>
#include <spawn.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

namespace corvane::spool_directory {

namespace {

const QByteArray prefix = QByteArrayLiteral("Corvane-");

bool isSpoolName(const QByteArray &name)
{
    if (!name.startsWith(prefix))
        return false;
    const QByteArray number = name.mid(prefix.size());
    return !number.isEmpty()
        && std::all_of(number.begin(), number.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// Renames the directory to a spool name with a random 64-bit number, which no process has. Returns
/// where it is afterwards: the old path if renaming failed.
QByteArray withAnotherName(const QByteArray &path)
{
    const auto number = QRandomGenerator::system()->generate64();
    const QByteArray other
        = path.first(path.lastIndexOf('/') + 1) + prefix + QByteArray::number(number);
    return ::rename(path.constData(), other.constData()) == 0 ? other : path;
}

bool holdsMoreThan(int most, const QByteArray &path)
{
    std::error_code problem;
    std::filesystem::directory_iterator entry(path.constData(), problem);
    int count = 0;
    while (!problem && entry != std::filesystem::directory_iterator() && ++count <= most)
        entry.increment(problem);
    return count > most;
}

/// Starts "rm -rf" for the path, without waiting for it. False if it could not be started.
bool haveRemoved(QByteArray path)
{
    std::array<char, 3> program = {"rm"};
    std::array<char, 4> option = {"-rf"};
    std::array<char, 3> endOfOptions = {"--"};
    const std::array<char *, 5> arguments
        = {program.data(), option.data(), endOfOptions.data(), path.data(), nullptr};
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    // A session of its own: the end of this process's group or terminal does not end "rm".
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSID);
    pid_t process = -1;
    const int problem
        = ::posix_spawnp(&process, program.data(), nullptr, &attributes, arguments.data(), environ);
    posix_spawnattr_destroy(&attributes);
    return problem == 0;
}

} // namespace

QByteArray name(qint64 processIdentifier)
{
    return prefix + QByteArray::number(processIdentifier);
}

QByteArray withoutTrailingSlashes(QByteArray path)
{
    while (path.size() > 1 && path.endsWith('/'))
        path.chop(1);
    return path;
}

std::vector<QByteArray> candidates(const QByteArray &temporaryDirectory)
{
    std::vector<QByteArray> paths;
    const auto closeDirectory = [](DIR *directory) { ::closedir(directory); };
    const std::unique_ptr<DIR, decltype(closeDirectory)> directory(
        ::opendir(temporaryDirectory.constData()), closeDirectory);
    while (const dirent *entry = directory ? ::readdir(directory.get()) : nullptr) {
        const QByteArray entryName(&entry->d_name[0]);
        if (isSpoolName(entryName))
            paths.push_back(temporaryDirectory + '/' + entryName);
    }
    return paths;
}

void setAside(const QByteArray &path)
{
    const int descriptor = private_folder::openAndLock(path);
    if (descriptor < 0)
        return;
    // The new name need not be remembered: `candidates` finds it.
    withAnotherName(path);
    ::close(descriptor);
}

void removeLeftover(const QByteArray &path)
{
    const int descriptor = private_folder::openAndLock(path);
    if (descriptor < 0)
        return;
    remove(path);
    ::close(descriptor);
}

void removeAtEnd(const QByteArray &path)
{
    if (!holdsMoreThan(mostRemovedAtEnd, path)) {
        remove(path);
        return;
    }
    // Renamed first, because a new process may get this one's number, and so the directory's name,
    // while "rm" is still deleting.
    const QByteArray aside = withAnotherName(path);
    if (!haveRemoved(aside))
        remove(aside);
}

void remove(const QByteArray &path)
{
    std::error_code ignored;
    std::filesystem::remove_all(std::filesystem::path(path.constData()), ignored);
}

} // namespace corvane::spool_directory
