#include "platform/qt/web/web_fetch.h"

#include "platform/qt/web/local_names.h"
#include "platform/qt/web/mailbox.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

/// A host with more addresses than that is tried at the first ones.
constexpr qsizetype maximumAddresses = 6;

int milliseconds(double seconds)
{
    return static_cast<int>(std::lround(seconds * 1000));
}

bool isThisMachine(const QUrl &url)
{
    const QString host = url.host(QUrl::FullyEncoded);
    const QHostAddress literal(host);
    return literal.isNull() ? local_names::isThisMachine(host)
                            : addressSpaceOf(literal) == AddressSpace::Loopback;
}

/// How far away a place is, as far as that can be told without looking it up.
AddressSpace spaceByName(const WebNetwork &network, const QUrl &url)
{
    const QString host = url.host(QUrl::FullyEncoded);
    if (const QHostAddress literal(host); !literal.isNull())
        return network.spaceOf(literal);
    return local_names::isNearby(host) ? AddressSpace::Private : AddressSpace::Public;
}

bool isOfTheWeb(const QUrl &url)
{
    return url.isValid() && !url.host().isEmpty() && url.port(1) > 0
        && (url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https"));
}

} // namespace

WebFetch::WebFetch(const WebNetwork &network, WebRequest request)
    : WebFetch(network, WebDownload{std::move(request), nullptr, nullptr})
{
}

WebFetch::WebFetch(const WebNetwork &network, WebDownload download)
    : m_network(network)
    , m_request(std::move(download.request))
    , m_take(std::move(download.take))
    , m_cancellation(std::move(download.cancellation))
    , m_farthest(m_request.foundIn)
    , m_mailbox(std::make_shared<Mailbox>(*this))
{
    for (QTimer *timer : {&m_silence, &m_whole}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, [this] { finish(std::nullopt); });
    }
    m_silence.setInterval(
        milliseconds(m_take ? network.downloadSilenceTimeout : network.requestTimeout));
    m_whole.setInterval(
        milliseconds(m_take ? network.downloadWholeTimeout : network.resourceTimeout));
}

WebFetch::~WebFetch()
{
    m_mailbox->close();
}

void WebFetch::start()
{
    m_silence.start();
    m_whole.start();
    if (m_cancellation) {
        m_cancellationHandler
            = std::make_unique<Cancellation::Handler>(*m_cancellation, [this, mailbox = m_mailbox] {
                  mailbox->post([this] { finish(std::nullopt); });
              });
    }
    visit(m_request.url);
}

bool WebFetch::isSecureEnough(const QUrl &url) const
{
    return !m_request.mustBeSecure || m_redirects == 0 || url.scheme() == QLatin1String("https");
}

void WebFetch::visit(const QUrl &url)
{
    m_url = url.adjusted(QUrl::RemoveUserInfo);
    m_route = {};
    if (!isOfTheWeb(m_url) || !isSecureEnough(m_url))
        return finish(std::nullopt);
    // What runs on this machine is reached without a proxy.
    if (!m_network.routes || isThisMachine(m_url))
        return follow(m_route);
    m_network.routes->find(m_url, [this, mailbox = m_mailbox](const WebRoute &route) {
        mailbox->post([this, route] { follow(route); });
    });
}

void WebFetch::follow(const WebRoute &route)
{
    if (m_hasEnded)
        return;
    m_route = route;
    if (route.isWithheld())
        return finish(std::nullopt);
    if (route.kind == WebRoute::Kind::Proxied)
        return exchangeThroughProxy();
    m_network.resolver->resolve(m_url.host(QUrl::FullyEncoded),
                                [this, mailbox = m_mailbox](const QList<QHostAddress> &addresses) {
                                    mailbox->post([this, addresses] { exchangeWith(addresses); });
                                });
}

QList<QHostAddress> WebFetch::allowed(const QList<QHostAddress> &found) const
{
    QList<QHostAddress> first;
    QList<QHostAddress> second;
    const bool mustBeThisMachine
        = m_request.mustBeSecure && m_url.scheme() != QLatin1String("https");
    for (const QHostAddress &address : found) {
        const AddressSpace space = m_network.spaceOf(address);
        if (m_farthest && space < *m_farthest)
            continue;
        if (mustBeThisMachine && space != AddressSpace::Loopback)
            continue;
        const bool isOfFirstFamily
            = first.isEmpty() || first.constFirst().protocol() == address.protocol();
        (isOfFirstFamily ? first : second).append(address);
    }
    // In turns, because one of the two families may not work at all here.
    QList<QHostAddress> all;
    for (qsizetype i = 0; i < std::max(first.size(), second.size()); ++i)
        all += first.mid(i, 1) + second.mid(i, 1);
    return all.mid(0, maximumAddresses);
}

void WebFetch::exchangeWith(const QList<QHostAddress> &found)
{
    if (!m_hasEnded)
        exchange(allowed(found));
}

void WebFetch::exchangeThroughProxy()
{
    const AddressSpace space = spaceByName(m_network, m_url);
    const bool isNamedByOthers = m_farthest.has_value();
    const bool isSecure = m_url.scheme() == QLatin1String("https");
    // The proxy looks the name up and may be led anywhere; only a certificate proves the host.
    if (isNamedByOthers && (space < *m_farthest || !isSecure))
        return finish(std::nullopt);
    if (m_request.mustBeSecure && !isSecure)
        return finish(std::nullopt);
    exchange({});
}

void WebFetch::exchange(const QList<QHostAddress> &addresses)
{
    const bool isProxied = m_route.kind == WebRoute::Kind::Proxied;
    m_exchange = std::make_unique<HttpExchange>(
        HttpExchange::Plan{m_url, m_request.userAgent, m_request.accept, m_request.maximumBytes,
                           addresses, m_network.nextAddressAfter, m_network.authorities, m_take,
                           isProxied ? std::optional(m_route.proxy) : std::nullopt});
    m_exchange->onProgress = [this] { m_silence.start(); };
    m_exchange->onEnd = [this] { exchangeEnded(); };
    m_exchange->start();
}

void WebFetch::exchangeEnded()
{
    // Deleted later, because the exchange is what calls this function.
    HttpExchange *const exchange = m_exchange.release();
    exchange->deleteLater();
    if (m_hasEnded || !exchange->isComplete())
        return finish(std::nullopt);
    const AddressSpace space = exchange->peer().isNull() ? spaceByName(m_network, m_url)
                                                         : m_network.spaceOf(exchange->peer());
    m_farthest = std::max(m_farthest.value_or(space), space);
    if (const auto location = exchange->redirection())
        return redirect(*location);
    finish(WebResponse{exchange->statusCode(), exchange->expectedContentLength(), m_url,
                       exchange->body(), *m_farthest});
}

void WebFetch::redirect(const QByteArray &location)
{
    if (++m_redirects > WebClient::maximumRedirects)
        return finish(std::nullopt);
    QUrl next = m_url.resolved(QUrl::fromEncoded(location));
    // A redirection without a fragment keeps the one of the address before it.
    if (!next.hasFragment() && m_url.hasFragment())
        next.setFragment(m_url.fragment(QUrl::FullyEncoded), QUrl::StrictMode);
    visit(next);
}

void WebFetch::finish(std::optional<WebResponse> response)
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_silence.stop();
    m_whole.stop();
    m_exchange.reset();
    QMetaObject::invokeMethod(
        this, [this, outcome = WebOutcome{std::move(response), m_route}] { onEnd(outcome); },
        Qt::QueuedConnection);
}

} // namespace corvane
