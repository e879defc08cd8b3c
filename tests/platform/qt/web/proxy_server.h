#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QTcpServer>
#include <QTcpSocket>

namespace corvane::test {

/// A proxy on this machine that leads every name to 127.0.0.1, and remembers what it was asked for.
/// Lives on the test's thread, like the servers.
class ProxyServer {
public:
    enum class Kind { Http, Socks5 };

    explicit ProxyServer(Kind kind);

    quint16 port() const { return m_server.serverPort(); }

    /// "site.test:443", as it was named; literal addresses in brackets.
    QList<QByteArray> tunnels;
    /// The heads of requests to the proxy itself, those for tunnels among them.
    QList<QByteArray> heads;
    /// What a tunnel is answered with.
    QByteArray welcome = "HTTP/1.1 200 Connected\r\n\r\n";
    /// What a request that it is to carry out itself is answered with.
    QByteArray answer;

private:
    void read(QTcpSocket &client);
    void readHttp(QTcpSocket &client, QByteArray &bytes);
    void readSocks(QTcpSocket &client, QByteArray &bytes);
    void tunnel(QTcpSocket &client, const QByteArray &name, quint16 port, const QByteArray &first);

    Kind m_kind;
    QHash<QTcpSocket *, QByteArray> m_bytes;
    QHash<QTcpSocket *, bool> m_isGreeted;
    QTcpServer m_server;
};

} // namespace corvane::test
