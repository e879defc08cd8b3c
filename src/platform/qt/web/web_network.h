#pragma once

#include "platform/qt/web/address_space.h"
#include "platform/qt/web/host_resolver.h"
#include "platform/qt/web/system_host_resolver.h"
#include "platform/web/web_client.h"
#include "platform/web/web_downloader.h"
#include "platform/web/web_routes.h"

#include <QList>
#include <QSslCertificate>

#include <functional>
#include <memory>

namespace corvane {

/// The network as fetches see it, and how long they bear with it; all times in seconds.
struct WebNetwork {
    /// Shared with lookups, which may still run when everything else has ended.
    std::shared_ptr<HostResolver> resolver = std::make_shared<SystemHostResolver>();
    /// Any thread.
    std::function<AddressSpace(const QHostAddress &)> spaceOf = addressSpaceOf;
    /// Shared in the same way; null where everything is reached directly.
    std::shared_ptr<WebRoutes> routes;
    /// Trusted beside those of the system.
    QList<QSslCertificate> authorities;

    double requestTimeout = WebClient::requestTimeout;
    double resourceTimeout = WebClient::resourceTimeout;
    double downloadSilenceTimeout = WebDownloader::silenceTimeout;
    double downloadWholeTimeout = WebDownloader::wholeTimeout;
    /// How long an address of a host may be silent before its next one is tried.
    double nextAddressAfter = 1;
};

} // namespace corvane
