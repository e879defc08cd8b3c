#include "platform/qt/web/http_server.h"

#include <QSslConfiguration>
#include <QSslServer>
#include <QSslSocket>
#include <QTimer>

namespace corvane::test {

HttpServer::HttpServer(const QString &address, const std::optional<Identity> &identity)
    : m_scheme(identity ? QStringLiteral("https") : QStringLiteral("http"))
{
    if (identity) {
        auto server = std::make_unique<QSslServer>();
        QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
        configuration.setLocalCertificate(identity->certificate);
        configuration.setPrivateKey(identity->key);
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        configuration.setAllowedNextProtocols({"h2", "http/1.1"});
        server->setSslConfiguration(configuration);
        m_server = std::move(server);
    } else {
        m_server = std::make_unique<QTcpServer>();
    }
    QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(),
                     [this] {
                         while (QTcpSocket *socket = m_server->nextPendingConnection())
                             accept(*socket);
                     });
    m_server->listen(QHostAddress(address));
}

void HttpServer::answer(const QByteArray &target, const QByteArray &response)
{
    on(target, [response](QTcpSocket &socket) {
        socket.write(response);
        socket.disconnectFromHost();
    });
}

void HttpServer::answerForEver(const QByteArray &target, const QByteArray &beginning,
                               const QByteArray &piece)
{
    on(target, [beginning, piece](QTcpSocket &socket) {
        // Not when bytes were written: an encrypted socket says so as soon as it has them.
        auto *timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket, piece] {
            const auto *secret = qobject_cast<QSslSocket *>(&socket);
            if (socket.bytesToWrite() == 0 && (!secret || secret->encryptedBytesToWrite() == 0))
                socket.write(piece);
        });
        timer->start(0);
        socket.write(beginning);
    });
}

QUrl HttpServer::url(const QString &target, const QString &host) const
{
    QUrl url(target);
    url.setScheme(m_scheme);
    url.setHost(host.isEmpty() ? m_server->serverAddress().toString() : host);
    url.setPort(port());
    return url;
}

void HttpServer::accept(QTcpSocket &socket)
{
    ++connections;
    ++open;
    QObject::connect(&socket, &QTcpSocket::disconnected, m_server.get(), [this] { --open; });
    QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket,
                     [this](qint64 count) { bytesTaken += count; });
    QObject::connect(&socket, &QTcpSocket::disconnected, &socket, &QObject::deleteLater);
    if (m_onConnection)
        return m_onConnection(socket);
    QObject::connect(&socket, &QTcpSocket::readyRead, &socket, [this, &socket] { read(socket); });
    read(socket);
}

void HttpServer::read(QTcpSocket &socket)
{
    QByteArray &head = m_heads[&socket];
    head += socket.readAll();
    if (!head.contains("\r\n\r\n"))
        return;
    const QByteArray whole = m_heads.take(&socket);
    requests.append(whole);
    const QByteArray target = whole.split(' ').value(1);
    if (const Script script = m_scripts.value(target))
        return script(socket);
    socket.write(response(404, "there is nothing here"));
    socket.disconnectFromHost();
}

QByteArray response(int status, const QByteArray &body, const QByteArray &fields)
{
    return "HTTP/1.1 " + QByteArray::number(status) + " Whatever\r\nContent-Length: "
        + QByteArray::number(body.size()) + "\r\n" + fields + "\r\n" + body;
}

QByteArray redirection(const QByteArray &location, int status)
{
    return response(status, "moved", "Location: " + location + "\r\n");
}

} // namespace corvane::test
