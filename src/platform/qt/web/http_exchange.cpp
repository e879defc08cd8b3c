#include "platform/qt/web/http_exchange.h"

#include <QNetworkProxy>
#include <QSslConfiguration>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 socketBufferBytes = 64 * 1024;
/// Servers refuse far shorter ones.
constexpr qsizetype maximumTargetBytes = 64 * 1024;

bool isHttps(const QUrl &url)
{
    return url.scheme() == QLatin1String("https");
}

int portOf(const QUrl &url)
{
    constexpr int http = 80;
    constexpr int https = 443;
    return url.port(isHttps(url) ? https : http);
}

/// Nothing in it can end a line or a word.
bool isPlain(const QByteArray &text)
{
    return std::ranges::all_of(text, [](char c) { return c > ' ' && c < '\x7f'; });
}

bool isFieldValue(const QByteArray &text)
{
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c != '\x7f'; });
}

QByteArray hostFieldOf(const QUrl &url)
{
    QByteArray host = url.host(QUrl::FullyEncoded).toLatin1();
    if (host.contains(':')) {
        // A scope is nobody's business but this machine's.
        if (const qsizetype scope = host.indexOf('%'); scope >= 0)
            host.truncate(scope);
        host = '[' + host + ']';
    }
    const bool isUsualPort = portOf(url) == portOf(QUrl(url.scheme() + QStringLiteral("://h")));
    return isUsualPort ? host : host + ':' + QByteArray::number(portOf(url));
}

/// The name that a certificate must be made out to.
QString certifiedNameOf(const QUrl &url)
{
    QString name = url.host(QUrl::FullyEncoded);
    if (name.endsWith(QLatin1Char('.')))
        name.chop(1);
    return name;
}

} // namespace

std::optional<QByteArray> HttpExchange::requestFor(const Plan &plan)
{
    QByteArray target = plan.url.path(QUrl::FullyEncoded).toLatin1();
    if (target.isEmpty())
        target = "/";
    if (plan.url.hasQuery())
        target += '?' + plan.url.query(QUrl::FullyEncoded).toLatin1();
    const QByteArray host = hostFieldOf(plan.url);
    if (!isPlain(target) || !isPlain(host) || target.size() > maximumTargetBytes)
        return std::nullopt;
    if (!isFieldValue(plan.userAgent) || !isFieldValue(plan.accept))
        return std::nullopt;

    QByteArray request = "GET " + target + " HTTP/1.1\r\nHost: " + host + "\r\n";
    if (!plan.userAgent.isEmpty())
        request += "User-Agent: " + plan.userAgent + "\r\n";
    if (!plan.accept.isEmpty())
        request += "Accept: " + plan.accept + "\r\n";
    request += QByteArray("Accept-Encoding: ") + ContentDecoder::accepted + "\r\n";
    // Nothing is kept open for later: an idle connection wakes both of its sides.
    return request + "Connection: close\r\n\r\n";
}

HttpExchange::HttpExchange(Plan plan, QByteArray request)
    : m_plan(std::move(plan))
    , m_request(std::move(request))
    , m_reader(m_plan.maximumBytes)
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &HttpExchange::tryNextAddress);
}

HttpExchange::~HttpExchange()
{
    if (m_socket)
        m_socket->disconnect(this);
}

void HttpExchange::start()
{
    tryNextAddress();
}

void HttpExchange::tryNextAddress()
{
    if (m_plan.addresses.isEmpty())
        return finish();
    m_peer = m_plan.addresses.takeFirst();
    // The last one may take the time that is left.
    if (!m_plan.addresses.isEmpty())
        m_patience.start(static_cast<int>(std::lround(m_plan.nextAddressAfter * 1000)));
    connectTo(m_peer);
}

void HttpExchange::connectTo(const QHostAddress &address)
{
    dropSocket();
    m_socket = std::make_unique<QSslSocket>();
    m_socket->setProxy(QNetworkProxy::NoProxy);
    m_socket->setReadBufferSize(socketBufferBytes);
    connect(m_socket.get(), &QSslSocket::readyRead, this, &HttpExchange::read);
    connect(m_socket.get(), &QSslSocket::errorOccurred, this, &HttpExchange::fail);
    connect(m_socket.get(), &QSslSocket::connected, this, [this] {
        m_isConnected = true;
        m_patience.stop();
        onProgress();
    });
    const auto port = static_cast<quint16>(portOf(m_plan.url));
    if (!isHttps(m_plan.url)) {
        connect(m_socket.get(), &QSslSocket::connected, this, &HttpExchange::send);
        m_socket->connectToHost(address.toString(), port);
        return;
    }
    QSslConfiguration configuration = m_socket->sslConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!m_plan.authorities.isEmpty())
        configuration.addCaCertificates(m_plan.authorities);
    m_socket->setSslConfiguration(configuration);
    connect(m_socket.get(), &QSslSocket::encrypted, this, &HttpExchange::send);
    m_socket->connectToHostEncrypted(address.toString(), port, certifiedNameOf(m_plan.url));
}

void HttpExchange::send()
{
    onProgress();
    m_socket->write(m_request);
}

void HttpExchange::read()
{
    std::array<char, socketBufferBytes> piece;
    for (;;) {
        const qint64 count = m_socket->read(piece.data(), piece.size());
        if (count <= 0)
            return;
        onProgress();
        const auto state = m_reader.feed({piece.data(), count});
        if (state == HttpResponseReader::State::Complete
            || state == HttpResponseReader::State::Failed)
            return finish();
    }
}

void HttpExchange::fail()
{
    if (!m_isConnected)
        return tryNextAddress();
    // A server that closes is no failure, if all has come.
    read();
    finish();
}

void HttpExchange::finish()
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_reader.end();
    m_patience.stop();
    dropSocket();
    QMetaObject::invokeMethod(
        this, [this] { onEnd(); }, Qt::QueuedConnection);
}

void HttpExchange::dropSocket()
{
    if (!m_socket)
        return;
    m_socket->disconnect(this);
    m_socket->abort();
    // This may be its own signal.
    m_socket.release()->deleteLater();
}

} // namespace corvane
