#pragma once

#include <QByteArray>
#include <QHostAddress>
#include <QList>
#include <QNetworkRequest>
#include <QObject>
#include <QSslCertificate>
#include <QTimer>
#include <QUrl>

#include <functional>
#include <optional>

class QNetworkAccessManager;
class QNetworkReply;

namespace corvane {

/// One request and its response. Connects to the addresses that it is given and to nothing else;
/// the host's name is for the server and for its certificate alone. A redirection is an answer
/// like any other, and nothing of its body is taken.
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
    };

    /// The request as it goes to one of the addresses; none where the plan's texts cannot stand in
    /// one.
    static std::optional<QNetworkRequest> requestFor(const Plan &plan, const QHostAddress &address);

    /// The manager must outlive it.
    HttpExchange(QNetworkAccessManager &manager, Plan plan);
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
    /// Where the response came from.
    QHostAddress peer() const { return m_peer; }

private:
    void tryNextAddress();
    void readHead();
    void readBody();
    bool takePiece(const QByteArray &piece);
    bool comesInsteadOfFile() const;
    void replyFinished();
    bool isWhole() const;
    void finish(bool isComplete);
    void dropReply();

    QNetworkAccessManager &m_manager;
    Plan m_plan;
    QNetworkReply *m_reply = nullptr;
    QTimer m_patience;
    QHostAddress m_peer;
    int m_statusCode = 0;
    QByteArray m_location;
    qint64 m_expectedContentLength = -1;
    QByteArray m_body;
    qint64 m_bodyBytes = 0;
    bool m_isConnected = false;
    bool m_isComplete = false;
    bool m_hasEnded = false;
};

} // namespace corvane
