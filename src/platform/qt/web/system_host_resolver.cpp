#include "platform/qt/web/system_host_resolver.h"

#include "platform/qt/web/local_names.h"

#include <netdb.h>
#include <sys/socket.h>

#include <system_error>
#include <thread>
#include <utility>

namespace corvane {

namespace {

QList<QHostAddress> lookUp(const QByteArray &host)
{
    addrinfo hints = {};
    hints.ai_socktype = SOCK_STREAM;
    // No IPv6 addresses where there is no IPv6.
    hints.ai_flags = AI_ADDRCONFIG;
    addrinfo *first = nullptr;
    if (::getaddrinfo(host.constData(), nullptr, &hints, &first) != 0)
        return {};
    const std::unique_ptr<addrinfo, void (*)(addrinfo *)> owner(first, ::freeaddrinfo);
    QList<QHostAddress> addresses;
    for (const addrinfo *entry = first; entry; entry = entry->ai_next) {
        const QHostAddress address(entry->ai_addr);
        if (!address.isNull() && !addresses.contains(address))
            addresses.append(address);
    }
    return addresses;
}

} // namespace

void SystemHostResolver::resolve(const QString &host, Completion completion)
{
    if (const QHostAddress literal(host); !literal.isNull())
        return completion({literal});
    if (local_names::isThisMachine(host)) {
        return completion(
            {QHostAddress(QHostAddress::LocalHostIPv6), QHostAddress(QHostAddress::LocalHost)});
    }
    // No name server is to hear of them.
    if (local_names::isOnion(host))
        return completion({});
    if (m_lookups->fetch_add(1) >= maximumLookups) {
        m_lookups->fetch_sub(1);
        return completion({});
    }
    try {
        std::thread([lookups = m_lookups, name = host.toLatin1(), completion] {
            const auto addresses = lookUp(name);
            lookups->fetch_sub(1);
            completion(addresses);
        }).detach();
    } catch (const std::system_error &) {
        m_lookups->fetch_sub(1);
        completion({});
    }
}

} // namespace corvane
