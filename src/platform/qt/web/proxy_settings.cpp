#include "platform/qt/web/proxy_settings.h"

#include "platform/qt/web/address_space.h"

#include <QHostAddress>

#include <initializer_list>

namespace corvane {

namespace {

QByteArray firstSet(std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        if (QByteArray value = qgetenv(name); !value.isEmpty())
            return value;
    }
    return {};
}

bool isOrIsBelow(QByteArrayView host, QByteArrayView domain)
{
    if (domain.startsWith('.'))
        domain = domain.sliced(1);
    if (domain.isEmpty() || !host.endsWith(domain))
        return false;
    return host.size() == domain.size() || host.chopped(domain.size()).endsWith('.');
}

} // namespace

ProxySettings ProxySettings::fromEnvironment()
{
    // HTTP_PROXY in capitals is a request's header field for a program behind a web server.
    return {firstSet({"http_proxy", "all_proxy", "ALL_PROXY"}),
            firstSet({"https_proxy", "HTTPS_PROXY", "all_proxy", "ALL_PROXY"}),
            firstSet({"no_proxy", "NO_PROXY"})};
}

bool ProxySettings::apply(const QUrl &url) const
{
    if ((url.scheme() == QLatin1String("https") ? https : http).isEmpty())
        return false;
    const QByteArray host = url.host(QUrl::FullyEncoded).toLatin1().toLower();
    const QHostAddress literal(QString::fromLatin1(host));
    if (isOrIsBelow(host, "localhost")
        || (!literal.isNull() && addressSpaceOf(literal) == AddressSpace::Loopback))
        return false;
    for (const QByteArray &entry : none.toLower().split(',')) {
        const QByteArray domain = entry.trimmed();
        if (domain == "*" || isOrIsBelow(host, domain))
            return false;
    }
    return true;
}

} // namespace corvane
