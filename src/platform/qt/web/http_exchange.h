#pragma once

#include "platform/qt/web/http_response_reader.h"

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSslCertificate>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <optional>

namespace corvane {

/// One request and its response over a connection of their own. Connects to the addresses that it
/// is given and to nothing else; the host's name is for the server and for its certificate alone.
class HttpExchange : public QObject {
public:
    struct Plan {
        QUrl url;
        QByteArray userAgent;
        QByteArray accept;
        qint64 maximumBytes = 0;
        /// In the order in which they are tried, each once its predecessor has failed or was
        /// silent for `nextAddressAfter` seconds.
        QList<QHostAddress> addresses;
        double nextAddressAfter = 1;
        QList<QSslCertificate> authorities;
    };

    /// The request's text; none where the address cannot stand in one.
    static std::optional<QByteArray> requestFor(const Plan &plan);

    HttpExchange(Plan plan, QByteArray request);
    HttpExchange(const HttpExchange &) = delete;
    HttpExchange &operator=(const HttpExchange &) = delete;
    ~HttpExchange() override;

    /// Whenever something has come from the other side.
    std::function<void()> onProgress;
    /// Once, later, at the end; the response is complete or has failed. Destroying the exchange
    /// before that ends it without a word.
    std::function<void()> onEnd;

    void start();

    const HttpResponseReader &response() const { return m_reader; }
    /// Where the response came from.
    QHostAddress peer() const { return m_peer; }

private:
    void tryNextAddress();
    void connectTo(const QHostAddress &address);
    void send();
    void read();
    void fail();
    void finish();
    void dropSocket();

    Plan m_plan;
    QByteArray m_request;
    HttpResponseReader m_reader;
    QHostAddress m_peer;
    std::unique_ptr<QSslSocket> m_socket;
    QTimer m_patience;
    bool m_isConnected = false;
    bool m_hasEnded = false;
};

} // namespace corvane
