#include "platform/qt/web/http_exchange.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace corvane {

namespace {

constexpr qint64 readBufferBytes = 65'536;
/// Servers refuse far shorter ones.
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
        // A scope is nobody's business but this machine's.
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

QSslConfiguration tlsConfiguration(const QList<QSslCertificate> &authorities)
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setProtocol(QSsl::TlsV1_2OrLater);
    configuration.setPeerVerifyMode(QSslSocket::VerifyPeer);
    if (!authorities.isEmpty())
        configuration.addCaCertificates(authorities);
    return configuration;
}

/// Nothing is kept, sent along or answered that was not asked for.
void keepToOurselves(QNetworkRequest &request)
{
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::AuthenticationReuseAttribute, QNetworkRequest::Manual);
}

/// Whether the server has answered, and it is only its answer that is called an error.
bool hasAnswered(int statusCode, QNetworkReply::NetworkError error)
{
    if (error == QNetworkReply::NoError)
        return statusCode > 0;
    const bool isAboutContent = error >= QNetworkReply::ContentAccessDenied
        && error <= QNetworkReply::UnknownContentError;
    const bool isAboutServer
        = error >= QNetworkReply::InternalServerError && error <= QNetworkReply::UnknownServerError;
    return statusCode >= 400
        && (isAboutContent || isAboutServer
            || error == QNetworkReply::ProtocolInvalidOperationError);
}

} // namespace

std::optional<QNetworkRequest> HttpExchange::requestFor(const Plan &plan,
                                                        const QHostAddress &address)
{
    const QByteArray target
        = plan.url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority | QUrl::RemoveFragment);
    const QByteArray host = hostFieldOf(plan.url);
    if (!isPlain(target) || !isPlain(host) || target.size() > maximumTargetBytes)
        return std::nullopt;
    if (!isFieldValue(plan.userAgent) || !isFieldValue(plan.accept))
        return std::nullopt;

    QUrl url = plan.url.adjusted(QUrl::RemoveUserInfo | QUrl::RemoveFragment);
    url.setHost(address.toString());
    if (!url.isValid())
        return std::nullopt;
    QNetworkRequest request(url);
    request.setRawHeader("Host", host);
    request.setPeerVerifyName(certifiedNameOf(plan.url));
    request.setRawHeader("User-Agent", plan.userAgent);
    if (!plan.accept.isEmpty())
        request.setRawHeader("Accept", plan.accept);
    // The toolkit would tell the desktop's language.
    request.setRawHeader("Accept-Language", "*");
    // An idle connection wakes both of its sides.
    request.setRawHeader("Connection", "close");
    // The body is taken in small pieces and left where enough has come: nothing swells unseen.
    request.setDecompressedSafetyCheckThreshold(-1);
    keepToOurselves(request);
    if (isHttps(plan.url))
        request.setSslConfiguration(tlsConfiguration(plan.authorities));
    return request;
}

HttpExchange::HttpExchange(QNetworkAccessManager &manager, Plan plan)
    : m_manager(manager)
    , m_plan(std::move(plan))
{
    m_patience.setSingleShot(true);
    connect(&m_patience, &QTimer::timeout, this, &HttpExchange::tryNextAddress);
}

HttpExchange::~HttpExchange()
{
    dropReply();
}

void HttpExchange::start()
{
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
    dropReply();
    if (m_plan.addresses.isEmpty())
        return finish(false);
    m_peer = m_plan.addresses.takeFirst();
    const auto request = requestFor(m_plan, m_peer);
    if (!request)
        return finish(false);
    // The last one may take the time that is left.
    if (!m_plan.addresses.isEmpty())
        m_patience.start(static_cast<int>(std::lround(m_plan.nextAddressAfter * 1000)));

    m_reply = m_manager.get(*request);
    m_reply->setReadBufferSize(readBufferBytes);
    connect(m_reply, &QNetworkReply::requestSent, this, [this] {
        m_isConnected = true;
        m_patience.stop();
        onProgress();
    });
    connect(m_reply, &QNetworkReply::metaDataChanged, this, &HttpExchange::readHead);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpExchange::readBody);
    connect(m_reply, &QNetworkReply::finished, this, &HttpExchange::replyFinished);
}

void HttpExchange::readHead()
{
    onProgress();
    m_statusCode = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    m_location = m_reply->rawHeader("Location");
    bool isNumber = false;
    const qint64 length = m_reply->rawHeader("Content-Length").toLongLong(&isNumber);
    const bool isCoded = m_reply->hasRawHeader("Content-Encoding");
    m_expectedContentLength = isNumber && length >= 0 && !isCoded ? length : -1;
    if (redirection())
        finish(true);
}

void HttpExchange::readBody()
{
    // What comes instead of a file ends by itself, or soon.
    const qint64 limit = comesInsteadOfFile() ? std::min(readBufferBytes, m_plan.maximumBytes)
                                              : m_plan.maximumBytes;
    while (m_reply && m_bodyBytes < limit) {
        const QByteArray piece = m_reply->read(std::min(readBufferBytes, limit - m_bodyBytes));
        if (piece.isEmpty())
            return;
        onProgress();
        if (!takePiece(piece))
            return finish(false);
    }
    finish(true);
}

bool HttpExchange::takePiece(const QByteArray &piece)
{
    m_bodyBytes += piece.size();
    if (comesInsteadOfFile())
        return true;
    if (m_plan.take)
        return m_plan.take(piece);
    m_body += piece;
    return true;
}

bool HttpExchange::comesInsteadOfFile() const
{
    constexpr int found = 200;
    return m_plan.take && m_statusCode != found;
}

bool HttpExchange::isWhole() const
{
    return m_expectedContentLength < 0 || m_bodyBytes >= m_expectedContentLength;
}

void HttpExchange::replyFinished()
{
    if (!m_isConnected)
        return tryNextAddress();
    const bool isAnswer = hasAnswered(m_statusCode, m_reply->error());
    if (isAnswer)
        readBody();
    finish(isAnswer && isWhole());
}

void HttpExchange::finish(bool isComplete)
{
    if (std::exchange(m_hasEnded, true))
        return;
    m_isComplete = isComplete;
    m_patience.stop();
    dropReply();
    QMetaObject::invokeMethod(
        this, [this] { onEnd(); }, Qt::QueuedConnection);
}

void HttpExchange::dropReply()
{
    if (!m_reply)
        return;
    QNetworkReply *const reply = std::exchange(m_reply, nullptr);
    reply->disconnect(this);
    reply->abort();
    // This may be its own signal.
    reply->deleteLater();
}

} // namespace corvane
