#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QSslCertificate>
#include <QSslKey>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane::test {

/// A web server that says exactly what a test tells it to, right or wrong. It lives on the test's
/// thread and answers while that one's event loop runs.
class HttpServer {
public:
    /// Answers a request, whose head has come, in any way it likes.
    using Script = std::function<void(QTcpSocket &)>;

    /// What a server of https shows.
    struct Identity {
        QSslCertificate certificate;
        QSslKey key;
    };

    /// Listens at an address of this machine; all of 127.0.0.0/8 are.
    explicit HttpServer(const QString &address = QStringLiteral("127.0.0.1"),
                        const std::optional<Identity> &identity = std::nullopt);

    void on(const QByteArray &target, const Script &script) { m_scripts.insert(target, script); }
    /// Sends these bytes and closes.
    void answer(const QByteArray &target, const QByteArray &response);
    /// Sends the beginning, then pieces without end.
    void answerForEver(const QByteArray &target, const QByteArray &beginning,
                       const QByteArray &piece);
    /// Before anything has been read.
    void onConnection(Script script) { m_onConnection = std::move(script); }

    QUrl url(const QString &target = QStringLiteral("/"), const QString &host = {}) const;
    quint16 port() const { return m_server->serverPort(); }

    /// The heads of the requests, as they came.
    QList<QByteArray> requests;
    /// How many times somebody knocked.
    int connections = 0;
    /// How many of them are there now.
    int open = 0;
    /// How many bytes the other sides took.
    qint64 bytesTaken = 0;

private:
    void accept(QTcpSocket &socket);
    void read(QTcpSocket &socket);

    QString m_scheme;
    QHash<QByteArray, Script> m_scripts;
    Script m_onConnection;
    QHash<QTcpSocket *, QByteArray> m_heads;
    std::unique_ptr<QTcpServer> m_server;
};

/// A response with a status, fields ("A: b\r\n") and a body of declared length.
QByteArray response(int status, const QByteArray &body, const QByteArray &fields = {});
QByteArray redirection(const QByteArray &location, int status = 302);

} // namespace corvane::test
