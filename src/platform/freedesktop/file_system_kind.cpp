#include "platform/freedesktop/file_system_kind.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace corvane::file_system_kind {

namespace {

using namespace std::string_view_literals;

constexpr auto userSpace = "fuse."sv;

template<std::size_t count>
bool isOneOf(const std::array<std::string_view, count> &names, std::string_view name)
{
    return std::ranges::find(names, name) != names.end();
}

/// A type that does not name its program ("fuse") is none of these, and so counts as remote.
bool isLocalProgram(std::string_view program)
{
    // What encrypts, joins or unpacks files of this machine, sandboxed programs' documents, and
    // containers' folders.
    static constexpr std::array names
        = {"gocryptfs"sv,    "encfs"sv,        "cryfs"sv,
           "securefs"sv,     "ecryptfs"sv,     "portal"sv,
           "bindfs"sv,       "mergerfs"sv,     "mhddfs"sv,
           "unionfs"sv,      "unionfs-fuse"sv, "fuse-overlayfs"sv,
           "lxcfs"sv,        "squashfuse"sv,   "squashfuse_ll"sv,
           "snapfuse"sv,     "dwarfs"sv,       "archivemount"sv,
           "fuse-archive"sv, "fuse-zip"sv,     "fuseiso"sv,
           "ratarmount"sv,   "rar2fs"sv,       "fuse2fs"sv,
           "fuse-ext2"sv,    "exfat"sv,        "ntfs-3g"sv,
           "apfs-fuse"sv,    "dislocker"sv,    "veracrypt"sv,
           "vdfuse"sv,       "ltfs"sv,         "appimagelauncherfs"sv};
    const QByteArray lower = QByteArray(program.data(), qsizetype(program.size())).toLower();
    return isOneOf(names, program) || lower.endsWith(".appimage");
}

/// Where AppImages mount themselves. The type is their file's name, which may be any.
bool isOfAppImage(const QByteArray &point)
{
    return point.startsWith("/tmp/.mount_");
}

} // namespace

bool isRemote(const QByteArray &type, const QByteArray &point)
{
    static constexpr std::array names = {
        "nfs"sv,    "nfs4"sv, "cifs"sv, "smb3"sv, "smbfs"sv,  "ncpfs"sv, "9p"sv,        "afs"sv,
        "autofs"sv, "ceph"sv, "coda"sv, "fuse"sv, "lustre"sv, "ocfs2"sv, "glusterfs"sv, "davfs"sv};
    const std::string_view name(type.constData(), std::size_t(type.size()));
    if (name.starts_with(userSpace))
        return !isLocalProgram(name.substr(userSpace.size())) && !isOfAppImage(point);
    return isOneOf(names, name);
}

QList<QByteArray> shownFolders(const QByteArray &type, const QByteArray &source)
{
    if (!type.startsWith("fuse"))
        return {};
    // "/home/me/.cipher", "cryfs@/home/me/.cipher", "/disk1:/disk2", "/disk1;/disk2"
    const char separator = type == "fuse.mhddfs" ? ';' : ':';
    QList<QByteArray> folders;
    for (const QByteArray &part : source.split(separator)) {
        const QByteArray folder = part.startsWith("/") ? part : part.mid(part.indexOf('@') + 1);
        if (folder.startsWith('/'))
            folders.append(folder);
    }
    return folders;
}

bool showsUnnamedFolders(const QByteArray &type, const QByteArray &source)
{
    static constexpr std::array names
        = {"fuse.gocryptfs"sv, "fuse.encfs"sv,   "fuse.cryfs"sv,
           "fuse.securefs"sv,  "fuse.bindfs"sv,  "fuse.mergerfs"sv,
           "fuse.mhddfs"sv,    "fuse.unionfs"sv, "fuse.unionfs-fuse"sv};
    const std::string_view name(type.constData(), std::size_t(type.size()));
    return isOneOf(names, name) && shownFolders(type, source).isEmpty();
}

} // namespace corvane::file_system_kind
