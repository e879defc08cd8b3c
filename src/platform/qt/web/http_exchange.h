#pragma once

#include "platform/qt/web/http_reader.h"
#include "platform/web/web_route.h"

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSslCertificate>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class QSslSocket;

namespace corvane {

/// One request and its response, on a connection of its own. Connects to the addresses that it is
/// given, or to its proxy, and to nothing else; without a proxy the host's name is for the server
/// and for its certificate alone. A redirection is an answer like any other, and nothing of its
/// body is taken. What is left is closed at once, whatever still comes.
///
///     Connecting --> Tunnelling --> Securing --> Asking --> the end
///     (the two in the middle where there is a proxy, and where it is https)
class HttpExchange : public QObject {
public:
    struct Plan {
        QUrl url;
        QByteArray userAgent;
        QByteArray accept;
        /// The body is complete with so many bytes, decompressed.
        qint64 maximumBytes = 0;
        /// In the order in which they are tried, each once its predecessor has failed or was
        /// silent for `nextAddressAfter` seconds.
        QList<QHostAddress> addresses;
        double nextAddressAfter = 1;
        QList<QSslCertificate> authorities;
        /// Takes the body of an answer of status 200, and the exchange keeps none; false ends it.
        std::function<bool(const QByteArray &)> take;
        /// Through which the host is reached by its name; `addresses` does not count then.
        std::optional<WebProxy> proxy = {};
    };

    /// The bytes that are sent; none where the plan's texts cannot stand in a request.
    static std::optional<QByteArray> requestFor(const Plan &plan);

    explicit HttpExchange(Plan plan);
    HttpExchange(const HttpExchange &) = delete;
    HttpExchange &operator=(const HttpExchange &) = delete;
    ~HttpExchange() override;

    /// Whenever something has come from the other side.
    std::function<void()> onProgress;
    /// Once, later, at the end.
    std::function<void()> onEnd;

    void start();

    /// Whether a response has come, whole or as far as it was wanted.
    bool isComplete() const { return m_isComplete; }
    // Of a complete one:
    int statusCode() const { return m_statusCode; }
    /// Where it leads to, as it says it itself; none where it leads nowhere.
    std::optional<QByteArray> redirection() const;
    /// -1 when it is not known or the body is compressed.
    qint64 expectedContentLength() const { return m_expectedContentLength; }
    QByteArray body() const { return m_body; }
    /// Where the response came from; null through a proxy.
    QHostAddress peer() const { return m_peer; }

private:
    enum class Stage { Connecting, Tunnelling, Securing, Asking };

    void tryNextAddress();
    void connectSocket();
    void connected();
    void openTunnel();
    void secure();
    void secured();
    void ask();
    void socketFailed(int error);
    void closed();
    void readSocket();
    void readTunnel(const QByteArray &bytes);
    void readAnswer(const QByteArray &bytes);
    bool takeHead();
    bool takePiece(const QByteArray &piece);
    bool comesInsteadOfFile() const;
    void judgeState();
    void finish(bool isComplete);
    void dropSocket();

    Plan m_plan;
    QByteArray m_request;
    QSslSocket *m_socket = nullptr;
    Stage m_stage = Stage::Connecting;
    std::unique_ptr<HttpReader> m_reader;
    QTimer m_patience;
    QHostAddress m_peer;
    bool m_hasTriedProxy = false;
    int m_statusCode = 0;
    QByteArray m_location;
    qint64 m_expectedContentLength = -1;
    QByteArray m_body;
    qint64 m_bodyBytes = 0;
    /// Whoever takes the pieces wants no more of them.
    bool m_isRefused = false;
    bool m_isComplete = false;
    bool m_hasEnded = false;
};

} // namespace corvane
