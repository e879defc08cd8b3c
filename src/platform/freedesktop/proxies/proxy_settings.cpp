#include "platform/freedesktop/proxies/proxy_settings.h"

#include <arpa/inet.h>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

using Bytes = std::array<unsigned char, 16>;

/// An address in the form that both families share; none where it is a name.
std::optional<Bytes> literal(const QByteArray &text)
{
    Bytes bytes = {};
    if (::inet_pton(AF_INET6, text.constData(), bytes.data()) == 1)
        return bytes;
    constexpr std::size_t mappedPrefix = 12;
    if (::inet_pton(AF_INET, text.constData(), bytes.data() + mappedPrefix) != 1)
        return std::nullopt;
    bytes[10] = bytes[11] = 0xff;
    return bytes;
}

/// "10.0.0.0/8"
bool isInBlock(const Bytes &address, const QByteArray &entry)
{
    const qsizetype slash = entry.indexOf('/');
    const QByteArray base = entry.first(slash);
    const auto block = literal(base);
    bool isNumber = false;
    int bits = static_cast<int>(entry.sliced(slash + 1).toUShort(&isNumber));
    constexpr int mappedBits = 96;
    constexpr int wholeBits = 128;
    if (!base.contains(':'))
        bits += mappedBits;
    if (!block || !isNumber || bits > wholeBits)
        return false;
    for (std::size_t i = 0; bits > 0; ++i, bits -= 8) {
        const auto mask = static_cast<unsigned>(bits >= 8 ? 0xff : 0xff << (8 - bits) & 0xff);
        if (((static_cast<unsigned>(address[i]) ^ static_cast<unsigned>((*block)[i])) & mask) != 0)
            return false;
    }
    return true;
}

bool isOrIsBelow(const QByteArray &host, QByteArray domain)
{
    if (domain.startsWith("*."))
        domain = domain.sliced(2);
    else if (domain.startsWith('.'))
        domain = domain.sliced(1);
    if (domain.isEmpty() || !host.endsWith(domain))
        return false;
    return host.size() == domain.size() || host.chopped(domain.size()).endsWith('.');
}

/// An exception as people write it, with a port behind it or without.
struct Exception {
    QByteArray host;
    std::optional<QByteArray> port;
};

Exception exceptionOf(const QByteArray &entry)
{
    qsizetype end = entry.indexOf(':');
    // The end of an address with colons is no port.
    if (end != entry.lastIndexOf(':'))
        end = -1;
    return end < 0 ? Exception{entry, {}} : Exception{entry.first(end), entry.sliced(end + 1)};
}

/// "[::1]:80" and "[fd00::]/8"; none where something else is in brackets.
std::optional<Exception> bracketed(const QByteArray &entry)
{
    const qsizetype end = entry.indexOf(']');
    if (end < 0)
        return std::nullopt;
    const QByteArray address = entry.sliced(1, end - 1);
    const QByteArray rest = entry.sliced(end + 1);
    if (!address.contains(':') || !literal(address))
        return std::nullopt;
    if (rest.startsWith(':'))
        return Exception{address, rest.sliced(1)};
    if (!rest.isEmpty() && !rest.startsWith('/'))
        return std::nullopt;
    return Exception{address + rest, {}};
}

bool matches(const QByteArray &host, int port, const QByteArray &entry)
{
    if (entry == "*")
        return true;
    if (entry == "<local>")
        return !host.contains('.') && !host.contains(':');
    const auto address = literal(host);
    const auto exception = entry.startsWith('[') ? bracketed(entry) : exceptionOf(entry);
    if (!exception || (exception->port && exception->port->toInt() != port))
        return false;
    if (exception->host.contains('/'))
        return address && isInBlock(*address, exception->host);
    if (const auto other = literal(exception->host); other || address)
        return address && other && *address == *other;
    return isOrIsBelow(host, exception->host);
}

bool isExcepted(const QUrl &url, const QStringList &entries)
{
    QByteArray host = url.host(QUrl::FullyEncoded).toLatin1().toLower();
    if (host.endsWith('.'))
        host.chop(1);
    const int port = url.port(url.scheme() == QLatin1String("https") ? 443 : 80);
    return std::ranges::any_of(entries, [&](const QString &entry) {
        return matches(host, port, entry.trimmed().toUtf8().toLower());
    });
}

} // namespace

WebRoute ProxySettings::routeFor(const QUrl &url) const
{
    if (mode == Mode::None)
        return {};
    if (mode == Mode::Script)
        return {WebRoute::Kind::NeedsScript};
    if (isExcepted(url, exceptions) != isReversed)
        return {};
    const QString &own = url.scheme() == QLatin1String("https") ? https : http;
    const QString &address = own.isEmpty() ? others : own;
    return address.isEmpty() ? WebRoute{} : proxy_address::route(address);
}

std::optional<WebProxy> ProxySettings::tor() const
{
    if (mode != Mode::Manual)
        return std::nullopt;
    for (const QString &address : {http, https, others}) {
        const WebRoute route = proxy_address::route(address);
        if (route.kind == WebRoute::Kind::Proxied && proxy_address::isTor(route.proxy))
            return route.proxy;
    }
    return std::nullopt;
}

WebRoute proxy_address::route(const QString &text)
{
    const WebRoute unusable{WebRoute::Kind::Unusable};
    const QString trimmed = text.trimmed();
    const bool hasScheme = trimmed.contains(QLatin1String("://"));
    const QUrl url(hasScheme ? trimmed : QLatin1String("http://") + trimmed, QUrl::TolerantMode);
    const QString scheme = url.scheme();
    if (scheme == QLatin1String("direct"))
        return {};
    const bool isSocks = scheme == QLatin1String("socks") || scheme == QLatin1String("socks5")
        || scheme == QLatin1String("socks5h");
    if (!url.isValid() || url.host().isEmpty() || (!isSocks && scheme != QLatin1String("http")))
        return unusable;
    constexpr int usualSocksPort = 1080;
    constexpr int usualHttpPort = 80;
    const int port = url.port(isSocks ? usualSocksPort : usualHttpPort);
    if (port == 0)
        return unusable;
    return {WebRoute::Kind::Proxied,
            {isSocks ? WebProxy::Kind::Socks5 : WebProxy::Kind::Http, url.host(QUrl::FullyEncoded),
             static_cast<quint16>(port), url.userName(QUrl::FullyDecoded),
             url.password(QUrl::FullyDecoded)}};
}

bool proxy_address::isTor(const WebProxy &proxy)
{
    constexpr quint16 daemon = 9050;
    constexpr quint16 browser = 9150;
    return proxy.kind == WebProxy::Kind::Socks5 && (proxy.port == daemon || proxy.port == browser);
}

} // namespace corvane
