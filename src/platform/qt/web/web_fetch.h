#pragma once

#include "platform/qt/web/http_exchange.h"
#include "platform/qt/web/web_network.h"
#include "platform/web_client.h"
#include "platform/web_downloader.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class Mailbox;

/// One request of the web client, through all its redirections.
///
///     visit -> resolve -> exchange -> done
///       ^                    |
///       +---- redirection ---+
///
/// Every place on the way is judged by the address that is connected to, and by nothing that its
/// name or the way it is written could pretend. Lives on a thread with an event loop, as does
/// everything that it makes.
class WebFetch : public QObject {
public:
    /// The manager and the network must outlive it.
    WebFetch(QNetworkAccessManager &manager, const WebNetwork &network, WebRequest request);
    WebFetch(QNetworkAccessManager &manager, const WebNetwork &network, WebDownload download);
    WebFetch(const WebFetch &) = delete;
    WebFetch &operator=(const WebFetch &) = delete;
    ~WebFetch() override;

    /// Once, later. Destroying the fetch before that ends it without a word.
    std::function<void(std::optional<WebResponse>)> onEnd;

    void start();

private:
    void visit(const QUrl &url);
    bool isSecureEnough(const QUrl &url) const;
    void exchangeWith(const QList<QHostAddress> &found);
    /// Those that may be connected to, the two families in turns.
    QList<QHostAddress> allowed(const QList<QHostAddress> &found) const;
    void exchangeEnded();
    void follow(const QByteArray &location);
    void finish(std::optional<WebResponse> response);

    QNetworkAccessManager &m_manager;
    const WebNetwork &m_network;
    WebRequest m_request;
    std::function<bool(const QByteArray &)> m_take;
    std::shared_ptr<Cancellation> m_cancellation;
    std::unique_ptr<Cancellation::Handler> m_cancellationHandler;
    QUrl m_url;
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
