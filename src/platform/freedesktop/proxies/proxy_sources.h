#pragma once

#include "platform/freedesktop/proxies/proxy_settings.h"

#include <QByteArray>
#include <QByteArrayList>

#include <functional>
#include <optional>

/// Reads the places that name proxies, out of what they contain.
namespace corvane::proxy_sources {

using Environment = std::function<QByteArray(const char *name)>;

/// The variables that command-line programs read. HTTP_PROXY in capitals is not read: web servers
/// set it for their scripts from a header that any client can send.
ProxySettings fromEnvironment(const Environment &environment);

/// From what `gsettings list-recursively org.gnome.system.proxy` prints.
ProxySettings fromGnome(const QByteArray &listing);

/// Where files "kioslaverc" may be: the system's, the most important of them last, and the user's.
QByteArrayList kdePaths(const Environment &environment);
/// From their contents, which may refer to the environment. What a later one says counts, unless an
/// earlier one forbids that.
ProxySettings fromKde(const QByteArrayList &files, const Environment &environment);

/// From what `gdbus` prints of the portal's answer, a list of addresses of which the first that is
/// spoken here counts; none where it is no answer.
std::optional<WebRoute> fromPortal(const QByteArray &reply);

/// Tor on this machine, from /proc/net/tcp: something of the user's or the system's own that
/// listens at one of its ports.
std::optional<WebProxy> listeningTor(const QByteArray &connections, unsigned user);

} // namespace corvane::proxy_sources
