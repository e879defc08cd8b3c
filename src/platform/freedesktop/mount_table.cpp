#include "platform/freedesktop/mount_table.h"

#include "platform/freedesktop/file_system_kind.h"

#include <QByteArrayList>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <iterator>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace corvane {

namespace {

/// Spaces and the like are written as three octal digits.
QByteArray unescaped(const QByteArray &text)
{
    QByteArray result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        bool isNumber = false;
        const int number = text.mid(i + 1, 3).toInt(&isNumber, 8);
        const bool isEscape = text[i] == '\\' && isNumber && i + 3 < text.size();
        result += isEscape ? static_cast<char>(number) : text[i];
        i += isEscape ? 3 : 0;
    }
    return result;
}

/// One line of the table; the point is empty when it is no such line.
struct Mount {
    QByteArray point;
    QByteArray type;
    QByteArray source;
};

Mount mount(const QByteArray &line)
{
    const QByteArrayList fields = line.split(' ');
    constexpr qsizetype pointField = 4;
    const qsizetype separator = fields.indexOf("-", pointField);
    if (separator < 0)
        return {};
    return {unescaped(fields[pointField]), fields.value(separator + 1),
            unescaped(fields.value(separator + 2))};
}

/// Whether the nearest mount on the way to `path` is remote; links are not followed.
bool liesOnRemote(const std::map<QByteArray, bool> &mounts, QByteArray path)
{
    while (!path.isEmpty()) {
        if (const auto found = mounts.find(path); found != mounts.end())
            return found->second;
        path.truncate(std::max<qsizetype>(path.lastIndexOf('/'), 0));
    }
    return false;
}

std::optional<QByteArray> linkTarget(const QByteArray &path)
{
    QByteArray target(PATH_MAX, Qt::Uninitialized);
    const auto size = ::readlink(path.constData(), target.data(), PATH_MAX);
    if (size <= 0)
        return std::nullopt;
    target.truncate(size);
    return target;
}

/// Follows paths, each from where the last one ended, at first from the root.
class Walk {
public:
    enum class End { Remote, Nowhere, Somewhere };

    explicit Walk(const std::map<QByteArray, bool> &mounts)
        : m_mounts(&mounts)
    {
    }

    End follow(const QByteArray &path)
    {
        prepend(path);
        while (!m_ahead.empty()) {
            const QByteArray component = m_ahead.back();
            m_ahead.pop_back();
            if (component == "..")
                leave();
            else if (const End end = enter(component); end != End::Somewhere)
                return end;
        }
        return End::Somewhere;
    }

    /// What is where it ended.
    std::optional<FileVersion> versionFor(const QByteArray &path) const
    {
        return m_isKnown ? FileVersion::of(path, m_status) : FileVersion::at(path);
    }

private:
    void prepend(const QByteArray &path)
    {
        // A single name, as that of each of a folder's thousands of files, needs no taking apart.
        if (!path.contains('/') && !path.isEmpty() && path != ".") {
            m_ahead.push_back(path);
            return;
        }
        const QByteArrayList components = path.split('/');
        std::copy_if(components.rbegin(), components.rend(), std::back_inserter(m_ahead),
                     [](const QByteArray &one) { return !one.isEmpty() && one != "."; });
    }

    void leave()
    {
        m_reached.truncate(std::max<qsizetype>(m_reached.lastIndexOf('/'), 0));
        m_isKnown = false;
    }

    End enter(const QByteArray &component)
    {
        const QByteArray next = m_reached + '/' + component;
        const auto found = m_mounts->find(next);
        if (found != m_mounts->end() && found->second)
            return End::Remote;
        if (::lstat(next.constData(), &m_status) != 0)
            return End::Nowhere;
        m_isKnown = !S_ISLNK(m_status.st_mode);
        if (m_isKnown) {
            m_reached = next;
            return End::Somewhere;
        }
        constexpr int mostLinks = 40;
        const auto target = linkTarget(next);
        if (!target || ++m_links > mostLinks)
            return End::Nowhere;
        if (target->startsWith('/'))
            m_reached.clear();
        prepend(*target);
        return End::Somewhere;
    }

    const std::map<QByteArray, bool> *m_mounts;
    QByteArray m_reached;
    /// The next one last.
    std::vector<QByteArray> m_ahead;
    int m_links = 0;
    struct stat m_status = {};
    /// Whether that is the status of where it is.
    bool m_isKnown = false;
};

} // namespace

MountTable::MountTable()
    : MountTable("/proc/self/mountinfo")
{
}

MountTable::MountTable(QByteArray tablePath)
    : m_tablePath(std::move(tablePath))
{
}

MountTable::~MountTable()
{
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool MountTable::hasChanged() const
{
    if (m_descriptor < 0)
        return true;
    pollfd table = {m_descriptor, POLLPRI, 0};
    return ::poll(&table, 1, 0) > 0 && (table.revents & (POLLPRI | POLLERR)) != 0;
}

MountTable::Mounts MountTable::readTable() const
{
    if (m_descriptor < 0)
        m_descriptor = ::open(m_tablePath.constData(), O_RDONLY | O_CLOEXEC);
    QByteArray table;
    std::array<char, 65'536> buffer = {};
    constexpr qsizetype longestTable = qsizetype(16) * 1024 * 1024;
    while (m_descriptor >= 0 && table.size() < longestTable) {
        const auto count = ::pread(m_descriptor, buffer.data(), buffer.size(), table.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        table.append(buffer.data(), count);
    }
    Mounts mounts;
    for (const QByteArray &line : table.split('\n')) {
        const auto [point, type, source] = mount(line);
        if (point.isEmpty())
            continue;
        const auto shown = file_system_kind::shownFolders(type, source);
        // The folders that it shows were mounted before it, so `mounts` has them.
        const bool isRemote = file_system_kind::isRemote(type, point)
            || file_system_kind::showsUnnamedFolders(type, source)
            || std::ranges::any_of(shown,
                                   [&](const auto &one) { return liesOnRemote(mounts, one); });
        mounts[point] = isRemote;
    }
    return mounts;
}

std::shared_ptr<const MountTable::Mounts> MountTable::mounts() const
{
    const std::lock_guard lock(m_mutex);
    if (hasChanged())
        m_mounts = std::make_shared<const Mounts>(readTable());
    return m_mounts;
}

bool MountTable::isRemote(const QByteArray &path) const
{
    const auto mounted = mounts();
    Walk walk(*mounted);
    return walk.follow(path) == Walk::End::Remote;
}

std::vector<FileLocality::Inspection> MountTable::inspect(const QList<QByteArray> &paths) const
{
    const auto mounted = mounts();
    std::vector<Inspection> inspections;
    inspections.reserve(static_cast<std::size_t>(paths.size()));
    // Where the last folder leads: the next file is likely to lie in it, too.
    QByteArray folder;
    Walk toFolder(*mounted);
    Walk::End folderEnd = Walk::End::Somewhere;
    for (const QByteArray &path : paths) {
        if (!path.startsWith('/') || path.contains('\0')) {
            inspections.emplace_back();
            continue;
        }
        const qsizetype slash = path.lastIndexOf('/', -2);
        if (QByteArray next = path.first(slash + 1); next != folder) {
            folder = std::move(next);
            toFolder = Walk(*mounted);
            folderEnd = toFolder.follow(folder);
        }
        Walk walk = toFolder;
        const Walk::End end = folderEnd == Walk::End::Somewhere
            ? walk.follow(
                QByteArray::fromRawData(path.constData() + slash + 1, path.size() - slash - 1))
            : folderEnd;
        inspections.push_back({end == Walk::End::Remote,
                               end == Walk::End::Somewhere ? walk.versionFor(path) : std::nullopt});
    }
    return inspections;
}

} // namespace corvane
