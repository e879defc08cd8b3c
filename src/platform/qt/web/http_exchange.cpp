#include "platform/qt/web/http_exchange.h"

#include <QHostAddress>
#include <QNetworkProxy>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslSocket>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 readBufferBytes = 65'536;
/// Longer ones are not sent: servers refuse far shorter ones.
constexpr qsizetype maximumTargetBytes = 65'536;

bool isHttps(const QUrl &url)
{
    return url.scheme() == QLatin1String("https");
}

int usualPortOf(const QUrl &url)
{
    constexpr int http = 80;
    constexpr int https = 443;
    return isHttps(url) ? https : http;
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
        // The scope of an IPv6 address means something on this machine only.
        if (const qsizetype scope = host.indexOf('%'); scope >= 0)
            host.truncate(scope);
        host = '[' + host + ']';
    }
    const int port = url.port(usualPortOf(url));
    return port == usualPortOf(url) ? host : host + ':' + QByteArray::number(port);
}

/// The name that a certificate must be made out to.
QString certifiedNameOf(const QUrl &url)
{
    QString name = url.host(QUrl::FullyEncoded);
    if (name.endsWith(QLatin1Char('.')))
        name.chop(1);
    return name;
}

/// Whether a certificate is made out to the address that a URL names literally; for host names Qt
/// sees to that. It compares an IPv6 address with names of servers too, as host names, which
/// neither is when the name has blanks: both become empty, and equal.
bool isForLiteralAddressOf(const QUrl &url, const QSslCertificate &certificate)
{
    QHostAddress address(certifiedNameOf(url));
    if (address.isNull())
        return true;
    address.setScopeId({});
    const auto named = certificate.subjectAlternativeNames().values(QSsl::IpAddressEntry);
    return std::ranges::any_of(
        named, [&address](const QString &name) { return QHostAddress(name) == address; });
}

QSslConfiguration tlsConfiguration(const QList<QSslCertificate> &authorities)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!authorities.isEmpty())
        configuration.addCaCertificates(authorities);
    return configuration;
}

QByteArray originOf(const QUrl &url)
{
    QByteArray host = url.host(QUrl::FullyEncoded).toLatin1();
    if (host.contains(':'))
        host = '[' + host + ']';
    return host + ':' + QByteArray::number(url.port(usualPortOf(url)));
}

/// The header with which the user logs in at the proxy; empty where there is no login.
QByteArray authorizationField(const WebProxy &proxy)
{
    if (proxy.user.isEmpty())
        return {};
    const QByteArray pair = proxy.user.toUtf8() + ':' + proxy.password.toUtf8();
    return "Proxy-Authorization: Basic " + pair.toBase64() + "\r\n";
}

/// Whether the proxy reads the request itself and does not just hand bytes on.
bool isReadByProxy(const HttpExchange::Plan &plan)
{
    return plan.proxy && plan.proxy->kind == WebProxy::Kind::Http && !isHttps(plan.url);
}

} // namespace

std::optional<QByteArray> HttpExchange::requestFor(const Plan &plan)
{
    QByteArray target
        = plan.url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    if (!target.startsWith('/'))
        target.prepend('/');
    const QByteArray host = hostFieldOf(plan.url);
    if (!isPlain(target) || !isPlain(host) || target.size() > maximumTargetBytes)
        return std::nullopt;
    if (!isFieldValue(plan.userAgent) || !isFieldValue(plan.accept))
        return std::nullopt;

    QByteArray request = "GET ";
    if (isReadByProxy(plan))
        request += "http://" + host;
    request += target + " HTTP/1.1\r\nHost: " + host + "\r\n";
    if (isReadByProxy(plan))
        request += authorizationField(*plan.proxy);
    request += "User-Agent: " + plan.userAgent + "\r\n";
    if (!plan.accept.isEmpty())
        request += "Accept: " + plan.accept + "\r\n";
    // Connections are closed at once, because an idle one wakes both of its sides.
    request += "Accept-Language: *\r\nConnection: close\r\nAccept-Encoding: gzip, deflate\r\n\r\n";
    return request;
}

HttpExchange::HttpExchange(Plan plan)
    : m_plan(std::move(plan))
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &HttpExchange::tryNextAddress);
}

HttpExchange::~HttpExchange()
{
    dropSocket();
}

void HttpExchange::start()
{
    const auto request = requestFor(m_plan);
    if (!request)
        return finish(false);
    m_request = *request;
    tryNextAddress();
}

std::optional<QByteArray> HttpExchange::redirection() const
{
    constexpr std::array statuses = {301, 302, 303, 307, 308};
    if (std::ranges::find(statuses, m_statusCode) == statuses.end() || m_location.isEmpty())
        return std::nullopt;
    return m_location;
}

void HttpExchange::tryNextAddress()
{
    dropSocket();
    m_patience.stop();
    if (m_plan.proxy ? std::exchange(m_hasTriedProxy, true) : m_plan.addresses.isEmpty())
        return finish(false);
    if (!m_plan.proxy) {
        m_peer = m_plan.addresses.takeFirst();
        // The last address has all of the request's remaining time.
        if (!m_plan.addresses.isEmpty())
            m_patience.start(static_cast<int>(std::lround(m_plan.nextAddressAfter * 1000)));
    }
    m_stage = Stage::Connecting;
    m_reader = std::make_unique<HttpReader>();
    connectSocket();
}

void HttpExchange::connectSocket()
{
    m_socket = new QSslSocket(this);
    m_socket->setReadBufferSize(readBufferBytes);
    connect(m_socket, &QSslSocket::connected, this, &HttpExchange::connected);
    connect(m_socket, &QSslSocket::encrypted, this, &HttpExchange::secured);
    connect(m_socket, &QSslSocket::readyRead, this, &HttpExchange::readSocket);
    connect(m_socket, &QSslSocket::errorOccurred, this, &HttpExchange::socketFailed);
    connect(m_socket, &QSslSocket::disconnected, this, &HttpExchange::closed);
    const auto port = static_cast<quint16>(m_plan.url.port(usualPortOf(m_plan.url)));
    if (!m_plan.proxy) {
        m_socket->setProxy(QNetworkProxy::NoProxy);
        m_socket->connectToHost(m_peer, port);
    } else if (m_plan.proxy->kind == WebProxy::Kind::Http) {
        m_socket->setProxy(QNetworkProxy::NoProxy);
        m_socket->connectToHost(m_plan.proxy->host, m_plan.proxy->port);
    } else {
        // It is given the name as it is, and finds the address itself.
        m_socket->setProxy({QNetworkProxy::Socks5Proxy, m_plan.proxy->host, m_plan.proxy->port,
                            m_plan.proxy->user, m_plan.proxy->password});
        m_socket->connectToHost(m_plan.url.host(QUrl::FullyEncoded), port);
    }
}

void HttpExchange::connected()
{
    if (!isHttps(m_plan.url))
        ask();
    else if (m_plan.proxy && m_plan.proxy->kind == WebProxy::Kind::Http)
        openTunnel();
    else
        secure();
}

void HttpExchange::openTunnel()
{
    m_stage = Stage::Tunnelling;
    const QByteArray origin = originOf(m_plan.url);
    m_socket->write("CONNECT " + origin + " HTTP/1.1\r\nHost: " + origin + "\r\n"
                    + authorizationField(*m_plan.proxy) + "\r\n");
}

void HttpExchange::secure()
{
    m_stage = Stage::Securing;
    m_socket->setSslConfiguration(tlsConfiguration(m_plan.authorities));
    m_socket->setPeerVerifyName(certifiedNameOf(m_plan.url));
    m_socket->startClientEncryption();
}

void HttpExchange::secured()
{
    if (isForLiteralAddressOf(m_plan.url, m_socket->peerCertificate()))
        ask();
    else
        tryNextAddress();
}

void HttpExchange::ask()
{
    m_stage = Stage::Asking;
    m_patience.stop();
    m_socket->write(m_request);
    onProgress();
}

void HttpExchange::socketFailed(int error)
{
    if (m_stage != Stage::Asking)
        return tryNextAddress();
    // What it sent before it closed the connection is still to be read.
    if (error != QAbstractSocket::RemoteHostClosedError)
        finish(false);
}

void HttpExchange::closed()
{
    readSocket();
    if (!m_socket)
        return;
    if (m_stage != Stage::Asking)
        return tryNextAddress();
    m_reader->end();
    judgeState();
}

void HttpExchange::readSocket()
{
    while (m_socket && m_socket->bytesAvailable() > 0) {
        const QByteArray bytes = m_socket->read(readBufferBytes);
        if (m_stage == Stage::Tunnelling)
            readTunnel(bytes);
        else if (m_stage == Stage::Asking)
            readAnswer(bytes);
        else
            // Bytes before the request was sent are no answer to it.
            return finish(false);
    }
}

void HttpExchange::readTunnel(const QByteArray &bytes)
{
    const qsizetype taken = m_reader->feedHead(bytes);
    if (m_reader->state() == HttpReader::State::Head)
        return;
    constexpr int success = 200;
    constexpr int successEnd = 300;
    const int status = m_reader->head().status;
    const bool isOpen = m_reader->state() == HttpReader::State::Body && status >= success
        && status < successEnd && taken == bytes.size();
    if (!isOpen)
        return finish(false);
    m_reader = std::make_unique<HttpReader>();
    secure();
}

void HttpExchange::readAnswer(const QByteArray &bytes)
{
    onProgress();
    qsizetype taken = 0;
    if (m_reader->state() == HttpReader::State::Head) {
        taken = m_reader->feedHead(bytes);
        if (m_reader->state() == HttpReader::State::Body && !takeHead())
            return finish(true);
    }
    m_reader->feedBody(QByteArrayView(bytes).sliced(taken),
                       [this](const QByteArray &piece) { return takePiece(piece); });
    judgeState();
}

/// Whether the body is wanted too.
bool HttpExchange::takeHead()
{
    const HttpHead &head = m_reader->head();
    m_statusCode = head.status;
    m_location = head.location;
    m_expectedContentLength = head.contentCoding.isEmpty() ? head.contentLength : -1;
    return !redirection();
}

bool HttpExchange::takePiece(const QByteArray &piece)
{
    // Of a page with an error, in place of a file, one buffer is taken and then no more.
    const qint64 limit = comesInsteadOfFile() ? std::min(readBufferBytes, m_plan.maximumBytes)
                                              : m_plan.maximumBytes;
    const QByteArray wanted = piece.left(limit - m_bodyBytes);
    m_bodyBytes += wanted.size();
    if (!comesInsteadOfFile()) {
        if (!m_plan.take)
            m_body += wanted;
        else
            m_isRefused = !m_plan.take(wanted);
    }
    return !m_isRefused && m_bodyBytes < limit;
}

bool HttpExchange::comesInsteadOfFile() const
{
    constexpr int found = 200;
    return m_plan.take && m_statusCode != found;
}

void HttpExchange::judgeState()
{
    switch (m_reader->state()) {
    case HttpReader::State::Head:
    case HttpReader::State::Body:
        break;
    case HttpReader::State::Whole:
        finish(true);
        break;
    case HttpReader::State::Left:
        finish(!m_isRefused);
        break;
    case HttpReader::State::Broken:
        finish(false);
        break;
    }
}

void HttpExchange::finish(bool isComplete)
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_isComplete = isComplete;
    m_patience.stop();
    dropSocket();
    QMetaObject::invokeMethod(
        this, [this] { onEnd(); }, Qt::QueuedConnection);
}

void HttpExchange::dropSocket()
{
    if (!m_socket)
        return;
    QSslSocket *const socket = std::exchange(m_socket, nullptr);
    socket->disconnect(this);
    // Closed at once, without waiting for the rest of what the server sends.
    socket->abort();
    // Deleted later, because this may run inside one of its signals.
    socket->deleteLater();
}

} // namespace corvane
