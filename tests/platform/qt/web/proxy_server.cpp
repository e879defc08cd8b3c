#include "platform/qt/web/proxy_server.h"

#include <QHostAddress>

namespace corvane::test {

ProxyServer::ProxyServer(Kind kind)
    : m_kind(kind)
{
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server, [this] {
        while (QTcpSocket *client = m_server.nextPendingConnection()) {
            QObject::connect(client, &QTcpSocket::readyRead, client,
                             [this, client] { read(*client); });
            QObject::connect(client, &QTcpSocket::disconnected, client, &QObject::deleteLater);
        }
    });
    m_server.listen(QHostAddress::LocalHost);
}

void ProxyServer::read(QTcpSocket &client)
{
    QByteArray &bytes = m_bytes[&client];
    bytes += client.readAll();
    if (m_kind == Kind::Http)
        readHttp(client, bytes);
    else
        readSocks(client, bytes);
}

void ProxyServer::readHttp(QTcpSocket &client, QByteArray &bytes)
{
    if (!bytes.contains("\r\n\r\n"))
        return;
    const QByteArray head = std::exchange(bytes, {});
    heads.append(head);
    const QList<QByteArray> words = head.split(' ');
    if (words.value(0) != "CONNECT") {
        client.write(answer);
        client.disconnectFromHost();
        return;
    }
    const QByteArray origin = words.value(1);
    const qsizetype colon = origin.lastIndexOf(':');
    tunnel(client, origin.first(colon), origin.mid(colon + 1).toUShort(), welcome);
}

void ProxyServer::readSocks(QTcpSocket &client, QByteArray &bytes)
{
    if (!std::exchange(m_isGreeted[&client], true)) {
        bytes.clear();
        client.write(QByteArray("\x05\x00", 2));
        return;
    }
    constexpr qsizetype head = 5;
    if (bytes.size() < head)
        return;
    const bool isName = bytes[3] == 3;
    const qsizetype length = isName ? bytes[4] : 4;
    const qsizetype begin = isName ? head : head - 1;
    if (bytes.size() < begin + length + 2)
        return;
    const QByteArray name = isName ? bytes.mid(begin, length) : QByteArray("[address]");
    const auto high = static_cast<unsigned char>(bytes[begin + length]);
    const auto low = static_cast<unsigned char>(bytes[begin + length + 1]);
    bytes.clear();
    tunnel(client, name, static_cast<quint16>(high << 8 | low),
           QByteArray("\x05\x00\x00\x01\x00\x00\x00\x00\x00\x00", 10));
}

void ProxyServer::tunnel(QTcpSocket &client, const QByteArray &name, quint16 port,
                         const QByteArray &first)
{
    tunnels.append(name + ':' + QByteArray::number(port));
    auto *far = new QTcpSocket(&client);
    client.disconnect(SIGNAL(readyRead()));
    QObject::connect(far, &QTcpSocket::connected, &client, [&client, far, first] {
        QObject::connect(&client, &QTcpSocket::readyRead, far,
                         [&client, far] { far->write(client.readAll()); });
        client.write(first);
    });
    QObject::connect(far, &QTcpSocket::readyRead, &client,
                     [&client, far] { client.write(far->readAll()); });
    QObject::connect(far, &QTcpSocket::disconnected, &client,
                     [&client] { client.disconnectFromHost(); });
    QObject::connect(far, &QTcpSocket::errorOccurred, &client, [&client, far] {
        if (far->state() != QTcpSocket::ConnectedState)
            client.disconnectFromHost();
    });
    far->connectToHost(QHostAddress(QHostAddress::LocalHost), port);
}

} // namespace corvane::test
