#pragma once

#include "platform/qt/web/http_exchange.h"
#include "platform/qt/web/web_network.h"
#include "platform/web/web_client.h"
#include "platform/web/web_downloader.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class Mailbox;

/// How a fetch has ended: with an answer or none, and which way it went last.
struct WebOutcome {
    std::optional<WebResponse> response;
    WebRoute route;
};

/// One request of the web client, through all its redirections.
///
///     visit -> route -> resolve -> exchange -> done
///       ^         |                  ^ |
///       |         +--- by a proxy ---+ |
///       +-------- redirection ---------+
///
/// Every place on the way is judged by the address that is connected to, and by nothing that its
/// name or the way it is written could pretend. Through a proxy nobody here sees that address, so
/// that what a page names has to be https: the certificate says that the place is the named one,
/// and the name that it is none of the network at hand. Lives on a thread with an event loop, as
/// does everything that it makes.
class WebFetch : public QObject {
public:
    /// The network must outlive it.
    WebFetch(const WebNetwork &network, WebRequest request);
    WebFetch(const WebNetwork &network, WebDownload download);
    WebFetch(const WebFetch &) = delete;
    WebFetch &operator=(const WebFetch &) = delete;
    ~WebFetch() override;

    /// Once, later. Destroying the fetch before that ends it without a word.
    std::function<void(const WebOutcome &)> onEnd;

    void start();

private:
    void visit(const QUrl &url);
    bool isSecureEnough(const QUrl &url) const;
    void follow(const WebRoute &route);
    void exchangeWith(const QList<QHostAddress> &found);
    /// Those that may be connected to, the two families in turns.
    QList<QHostAddress> allowed(const QList<QHostAddress> &found) const;
    void exchangeThroughProxy();
    void exchange(const QList<QHostAddress> &addresses);
    void exchangeEnded();
    void redirect(const QByteArray &location);
    void finish(std::optional<WebResponse> response);

    const WebNetwork &m_network;
    WebRequest m_request;
    std::function<bool(const QByteArray &)> m_take;
    std::shared_ptr<Cancellation> m_cancellation;
    std::unique_ptr<Cancellation::Handler> m_cancellationHandler;
    QUrl m_url;
    WebRoute m_route;
    /// The farthest place so far, of this request and of what led to it.
    std::optional<AddressSpace> m_farthest;
    int m_redirects = 0;
    QTimer m_silence;
    QTimer m_whole;
    std::shared_ptr<Mailbox> m_mailbox;
    std::unique_ptr<HttpExchange> m_exchange;
    bool m_hasEnded = false;
};

} // namespace corvane
