#include "platform/freedesktop/mount_table.h"

#include <QByteArrayList>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <deque>
#include <optional>
#include <utility>

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

/// Mount point and type of one line; the point is empty when it is no such line.
std::pair<QByteArray, QByteArray> mount(const QByteArray &line)
{
    const QByteArrayList fields = line.split(' ');
    constexpr qsizetype pointField = 4;
    const qsizetype separator = fields.indexOf("-", pointField);
    if (separator < 0)
        return {};
    return {unescaped(fields[pointField]), fields.value(separator + 1)};
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

void prepend(std::deque<QByteArray> &components, const QByteArray &path)
{
    const QByteArrayList more = path.split('/');
    components.insert(components.begin(), more.begin(), more.end());
}

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

bool MountTable::isRemoteType(const QByteArray &type)
{
    static constexpr std::array names
        = {"nfs",    "nfs4", "cifs", "smb3", "smbfs",  "ncpfs", "9p",        "afs",
           "autofs", "ceph", "coda", "fuse", "lustre", "ocfs2", "glusterfs", "davfs"};
    return type.startsWith("fuse.")
        || std::ranges::any_of(names, [&](const char *name) { return type == name; });
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
        const auto [point, type] = mount(line);
        if (!point.isEmpty())
            mounts[point] = isRemoteType(type);
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
    std::deque<QByteArray> ahead;
    prepend(ahead, path);
    QByteArray reached;
    constexpr int mostLinks = 40;
    for (int links = 0; !ahead.empty();) {
        const QByteArray component = ahead.front();
        ahead.pop_front();
        if (component.isEmpty() || component == ".")
            continue;
        if (component == "..") {
            reached.truncate(std::max<qsizetype>(reached.lastIndexOf('/'), 0));
            continue;
        }
        const QByteArray next = reached + '/' + component;
        const auto found = mounted->find(next);
        if (found != mounted->end() && found->second)
            return true;
        struct stat status = {};
        if (::lstat(next.constData(), &status) != 0)
            return false;
        if (!S_ISLNK(status.st_mode)) {
            reached = next;
            continue;
        }
        const auto target = linkTarget(next);
        if (!target || ++links > mostLinks)
            return false;
        if (target->startsWith('/'))
            reached.clear();
        prepend(ahead, *target);
    }
    return false;
}

} // namespace corvane
