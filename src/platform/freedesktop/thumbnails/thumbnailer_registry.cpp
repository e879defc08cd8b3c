#include "platform/freedesktop/thumbnails/thumbnailer_registry.h"

#include "platform/system/regular_file.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace corvane {

namespace {

constexpr qsizetype maximumFiles = 1'000;
/// Longer than such a file has reason to be.
constexpr qint64 longestFile = 65'536;

/// The names in a folder that end as they should, in a fixed order.
QByteArrayList names(const QByteArray &folder)
{
    const std::unique_ptr<DIR, int (*)(DIR *)> directory(::opendir(folder.constData()), ::closedir);
    QByteArrayList result;
    while (directory && result.size() < maximumFiles) {
        const dirent *entry = ::readdir(directory.get());
        if (!entry)
            break;
        const QByteArray name(static_cast<const char *>(entry->d_name));
        if (name.endsWith(".thumbnailer"))
            result << name;
    }
    std::sort(result.begin(), result.end());
    return result;
}

QByteArray changeOf(const QByteArray &folder)
{
    struct stat status = {};
    if (::stat(folder.constData(), &status) != 0)
        return "none";
    return QByteArray::number(qint64{status.st_mtim.tv_sec}) + '.'
        + QByteArray::number(qint64{status.st_mtim.tv_nsec});
}

/// The absolute ones of a list of paths.
QByteArrayList absolute(const QByteArray &paths)
{
    QByteArrayList result;
    for (const QByteArray &path : paths.split(':')) {
        if (path.startsWith('/'))
            result << path;
    }
    return result;
}

bool isExecutable(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode)
        && ::access(path.constData(), X_OK) == 0;
}

} // namespace

ThumbnailerRegistry::ThumbnailerRegistry(QByteArrayList dataFolders, QByteArrayList programFolders)
    : m_programFolders(std::move(programFolders))
{
    for (const QByteArray &folder : std::as_const(dataFolders))
        m_folders << folder + "/thumbnailers";
}

QByteArrayList ThumbnailerRegistry::environmentDataFolders()
{
    QByteArrayList folders = absolute(qgetenv("XDG_DATA_HOME")).mid(0, 1);
    if (folders.isEmpty() && qgetenv("HOME").startsWith('/'))
        folders << qgetenv("HOME") + "/.local/share";
    const QByteArray system = qgetenv("XDG_DATA_DIRS");
    return folders + absolute(system.isEmpty() ? "/usr/local/share:/usr/share" : system);
}

QByteArrayList ThumbnailerRegistry::environmentProgramFolders()
{
    return absolute(qgetenv("PATH"));
}

std::optional<ThumbnailerRegistry::Thumbnailer>
ThumbnailerRegistry::find(const QByteArrayList &mimeTypes) const
{
    const std::lock_guard lock(m_mutex);
    readIfChanged();
    for (const QByteArray &type : mimeTypes) {
        const auto entry = m_entries.constFind(type.toLower());
        if (entry == m_entries.constEnd())
            continue;
        const QByteArray program = programPath(entry->exec.constFirst());
        const bool isThere = entry->tryExec.isEmpty() || !programPath(entry->tryExec).isEmpty();
        if (isThere && !program.isEmpty())
            return Thumbnailer{program, *entry};
    }
    return std::nullopt;
}

void ThumbnailerRegistry::readIfChanged() const
{
    QByteArrayList changes;
    for (const QByteArray &folder : m_folders)
        changes << changeOf(folder);
    if (changes == m_changes)
        return;
    m_changes = changes;
    m_entries.clear();
    QByteArrayList seen;
    for (const QByteArray &folder : m_folders)
        readFolder(folder, seen);
}

void ThumbnailerRegistry::readFolder(const QByteArray &folder, QByteArrayList &seen) const
{
    for (const QByteArray &name : names(folder)) {
        if (seen.contains(name))
            continue;
        // A file without a command hides its namesakes as well: that is how users turn one off.
        seen << name;
        const auto entry = ThumbnailerEntry::parse(
            regular_file::contents(folder + '/' + name, longestFile).value_or(QByteArray()));
        if (!entry)
            continue;
        for (const QByteArray &type : entry->mimeTypes) {
            if (!m_entries.contains(type))
                m_entries.insert(type, *entry);
        }
    }
}

QByteArray ThumbnailerRegistry::programPath(const QByteArray &name) const
{
    if (name.startsWith('/'))
        return isExecutable(name) ? name : QByteArray();
    if (name.isEmpty() || name.contains('/'))
        return {};
    for (const QByteArray &folder : m_programFolders) {
        if (isExecutable(folder + '/' + name))
            return folder + '/' + name;
    }
    return {};
}

} // namespace corvane
