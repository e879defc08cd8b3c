#include "platform/qt/system/remote_mounts.h"

#include "platform/qt/system/bounded_listing.h"
#include "platform/system/file_url.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace corvane {

namespace {

using namespace std::string_view_literals;

/// Schemes whose folders' names begin differently.
constexpr std::array<std::pair<const char *, QLatin1String>, 3> renamedKinds
    = {{{"smb", QLatin1String("smb-share")},
        {"davs", QLatin1String("dav")},
        {"afp", QLatin1String("afp-volume")}}};

/// The usual ports, which an address may name or not.
constexpr std::array<std::pair<const char *, int>, 7> usualPorts = {{{"sftp", 22},
                                                                     {"ftp", 21},
                                                                     {"ftps", 21},
                                                                     {"dav", 80},
                                                                     {"davs", 443},
                                                                     {"smb-share", 445},
                                                                     {"afp-volume", 548}}};

template<typename Table, typename Value>
Value lookedUp(const Table &table, const QString &name, Value otherwise)
{
    const auto found = std::ranges::find_if(
        table, [&](const auto &entry) { return name == QLatin1String(entry.first); });
    return found == table.end() ? otherwise : Value(found->second);
}

QString kindOf(const QString &scheme)
{
    return lookedUp(renamedKinds, scheme, scheme);
}

bool hasShares(const QString &kind)
{
    return kind == QLatin1String("smb-share") || kind == QLatin1String("afp-volume");
}

/// Numeric hosts are in brackets in a folder's name.
QString withoutBrackets(const QString &host)
{
    const bool isBracketed
        = host.startsWith(QLatin1Char('[')) && host.endsWith(QLatin1Char(']')) && host.size() > 2;
    return isBracketed ? host.sliced(1, host.size() - 2) : host;
}

/// The decoded components of an encoded path. None if one of them cannot be a name: an encoded
/// slash or ".." would lead out of the place.
std::optional<QList<QByteArray>> namesAlong(const QByteArray &encodedPath)
{
    QList<QByteArray> names;
    for (const QByteArray &encoded : encodedPath.split('/')) {
        const QByteArray name = QByteArray::fromPercentEncoding(encoded);
        if (name.isEmpty())
            continue;
        if (name == "." || name == ".." || name.contains('/') || name.contains('\0'))
            return std::nullopt;
        names.append(name);
    }
    return names;
}

} // namespace

RemoteMounts::RemoteMounts(QByteArray folder, const QList<QByteArray> &names)
    : m_folder(std::move(folder))
{
    for (const QByteArray &name : names) {
        if (auto mount = mountNamed(name))
            m_mounts.push_back(std::move(*mount));
    }
    // If one mount is inside another, the inner one comes first, because its paths are the shorter
    // ones.
    std::ranges::stable_sort(m_mounts, std::greater(),
                             [](const Mount &mount) { return mount.prefix.size(); });
}

RemoteMounts RemoteMounts::ofSession()
{
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    if (!runtime.startsWith('/'))
        return {{}, {}};
    static BoundedListing listing;
    const QByteArray folder = runtime + "/gvfs";
    return {folder, listing.names(folder)};
}

bool RemoteMounts::mayHold(const QUrl &address)
{
    constexpr std::array common = {"file"sv, "http"sv, "https"sv};
    const QByteArray scheme = address.scheme().toLatin1();
    return !address.host().isEmpty()
        && std::ranges::find(common, std::string_view(scheme)) == common.end();
}

std::optional<RemoteMounts::Mount> RemoteMounts::mountNamed(const QByteArray &name)
{
    const qsizetype colon = name.indexOf(':');
    if (colon <= 0)
        return std::nullopt;
    Mount mount;
    mount.name = name;
    mount.place.kind = QString::fromLatin1(name.first(colon));
    for (const QByteArray &pair : name.sliced(colon + 1).split(',')) {
        const qsizetype equals = pair.indexOf('=');
        // A folder with an unknown key may be another place.
        if (equals <= 0 || !setValue(mount, pair.first(equals), pair.sliced(equals + 1)))
            return std::nullopt;
    }
    forgetUsualPort(mount.place);
    return mount.place.host.isEmpty() ? std::nullopt : std::optional(mount);
}

bool RemoteMounts::setValue(Mount &mount, const QByteArray &key, const QByteArray &encoded)
{
    Place &place = mount.place;
    const QByteArray bytes = QByteArray::fromPercentEncoding(encoded);
    const QString value = QString::fromUtf8(bytes);
    if (key == "host" || key == "server") {
        place.host = withoutBrackets(value.toLower());
    } else if (key == "user") {
        place.user = value;
    } else if (key == "domain") {
        place.domain = value.toLower();
    } else if (key == "share" || key == "volume") {
        place.share = value.toLower();
    } else if (key == "ssl") {
        place.isEncrypted = value == QLatin1String("true");
    } else if (key == "port") {
        place.port = value.toInt();
        return place.port > 0;
    } else if (key == "prefix") {
        const auto names = namesAlong(bytes.toPercentEncoding("/"));
        mount.prefix = names.value_or(QList<QByteArray>());
        return names.has_value();
    } else {
        return false;
    }
    return true;
}

RemoteMounts::Place RemoteMounts::placeOf(const QUrl &address)
{
    Place place;
    const QString scheme = address.scheme();
    place.kind = kindOf(scheme);
    place.host = address.host(QUrl::FullyDecoded).toLower();
    place.user = address.userName(QUrl::FullyDecoded);
    if (const auto semicolon = place.user.indexOf(QLatin1Char(';'));
        semicolon >= 0 && hasShares(place.kind)) {
        place.domain = place.user.first(semicolon).toLower();
        place.user = place.user.sliced(semicolon + 1);
    }
    place.port = address.port();
    place.isEncrypted = scheme == QLatin1String("davs");
    forgetUsualPort(place);
    return place;
}

void RemoteMounts::forgetUsualPort(Place &place)
{
    const QString key = place.isEncrypted ? place.kind + QLatin1Char('s') : place.kind;
    if (place.port == lookedUp(usualPorts, key, -1))
        place.port = -1;
}

std::optional<QUrl> RemoteMounts::localFile(const QUrl &address) const
{
    // A '?' or '#' in a file's name is encoded; a raw one would change which file is meant.
    if (!mayHold(address) || address.hasQuery() || address.hasFragment())
        return std::nullopt;
    auto names = namesAlong(address.path(QUrl::FullyEncoded).toLatin1());
    Place place = placeOf(address);
    if (!names)
        return std::nullopt;
    if (hasShares(place.kind)) {
        if (names->isEmpty())
            return std::nullopt;
        place.share = QString::fromUtf8(names->takeFirst()).toLower();
    }
    for (const Mount &mount : m_mounts) {
        const qsizetype depth = mount.prefix.size();
        if (mount.place != place || names->size() < depth || names->first(depth) != mount.prefix)
            continue;
        return file_url::fromNativePath(
            (QList<QByteArray>{m_folder, mount.name} + names->sliced(depth)).join('/'));
    }
    return std::nullopt;
}

} // namespace corvane
