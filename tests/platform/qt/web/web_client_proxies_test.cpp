// Which way requests go, with proxies of our own on this machine.

#include "platform/qt/web/proxy_server.h"
#include "platform/qt/web/test_authority.h"
#include "platform/qt/web/web_client_fixture.h"

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

/// What a test says, for each host or for all.
class RoutesStub : public WebRoutes {
public:
    void find(const QUrl &url, Completion completion) override
    {
        const std::lock_guard lock(m_mutex);
        asked.append(url.host());
        if (silent)
            return pending.push_back(std::move(completion));
        completion(hosts.value(url.host(), all));
    }

    WebRoute all;
    QHash<QString, WebRoute> hosts;
    QStringList asked;
    bool silent = false;
    std::vector<Completion> pending;

private:
    std::mutex m_mutex;
};

WebRoute by(const ProxyServer &server, WebProxy::Kind kind, const QString &user = {})
{
    return {WebRoute::Kind::Proxied, {kind, u"127.0.0.1"_s, server.port(), user, user + u"!"_s}};
}

class WebClientProxies : public WebClientTest {
protected:
    WebClientProxies()
    {
        network.routes = routes;
        network.authorities = {authority().certificate()};
    }

    static TestAuthority &authority()
    {
        static TestAuthority one;
        return one;
    }
    /// The request, and the way it went.
    std::optional<WebResponse> fetchAndNote(WebRequest asked)
    {
        asked.onRoute = [this](const WebRoute &route) { noted.push_back(route); };
        return fetch(asked);
    }
    std::optional<WebResponse> fetchAndNote(const QUrl &url) { return fetchAndNote(request(url)); }

    const WebProxy::Kind http = WebProxy::Kind::Http;
    const WebProxy::Kind socks = WebProxy::Kind::Socks5;
    std::shared_ptr<RoutesStub> routes = std::make_shared<RoutesStub>();
    std::vector<WebRoute> noted;
    ProxyServer httpProxy{ProxyServer::Kind::Http};
    ProxyServer socksProxy{ProxyServer::Kind::Socks5};
};

} // namespace

TEST_F(WebClientProxies, aPlainPageIsAskedOfTheProxyItselfAndNoNameIsLookedUp)
{
    routes->all = by(httpProxy, http);
    httpProxy.answer = response(200, "page");
    const auto answer = fetchAndNote(QUrl(u"http://far.test/a?b"_s));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "page");
    EXPECT_EQ(answer->url, QUrl(u"http://far.test/a?b"_s));
    EXPECT_EQ(answer->foundIn, AddressSpace::Public);
    ASSERT_EQ(httpProxy.heads.size(), 1);
    EXPECT_TRUE(
        httpProxy.heads[0].startsWith("GET http://far.test/a?b HTTP/1.1\r\nHost: far.test\r\n"))
        << httpProxy.heads[0].toStdString();
    EXPECT_EQ(resolver->timesAsked(), 0);
    EXPECT_EQ(noted, std::vector{routes->all});
}

TEST_F(WebClientProxies, aSecurePageGoesThroughATunnelToTheNamedServer)
{
    HttpServer server(u"127.0.0.1"_s, authority().issue(u"DNS:site.test"_s));
    server.answer("/", response(200, "page"));
    for (const WebRoute &route : {by(httpProxy, http), by(socksProxy, socks)}) {
        routes->all = route;
        const auto answer = fetch(server.url(u"/"_s, u"site.test"_s));
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->body, "page");
        EXPECT_FALSE(fetch(server.url(u"/"_s, u"other.test"_s)))
            << "its certificate is not that one's";
    }
    const QByteArray port = QByteArray::number(server.port());
    EXPECT_EQ(httpProxy.tunnels, (QList<QByteArray>{"site.test:" + port, "other.test:" + port}));
    EXPECT_EQ(socksProxy.tunnels, httpProxy.tunnels) << "by its name, not by an address";
    EXPECT_EQ(resolver->timesAsked(), 0);
}

TEST_F(WebClientProxies, aTunnelToALiteralAddressIsAskedForInBracketsAndEndsAtItsCertificate)
{
    routes->all = by(httpProxy, http);
    for (const auto &[subject, isTrusted] :
         {std::pair(u"IP:2606:4700::1111"_s, true), std::pair(u"IP:2606:4700::2222"_s, false),
          std::pair(u"DNS:site.test"_s, false)}) {
        HttpServer server(u"127.0.0.1"_s, authority().issue(subject));
        server.answer("/", response(200, "page"));
        QUrl place = server.url(u"/"_s, u"site.test"_s);
        place.setHost(u"2606:4700::1111"_s);
        EXPECT_EQ(fetch(place).has_value(), isTrusted)
            << "its certificate: " << qPrintable(subject);
        EXPECT_EQ(httpProxy.tunnels.last(),
                  "[2606:4700::1111]:" + QByteArray::number(server.port()));
    }
}

TEST_F(WebClientProxies, aPlainPageGoesThroughSocksByItsName)
{
    routes->all = by(socksProxy, socks);
    HttpServer server;
    server.answer("/", response(200, "page"));
    EXPECT_TRUE(fetch(server.url(u"/"_s, u"hidden.onion"_s)));
    EXPECT_EQ(socksProxy.tunnels,
              QList<QByteArray>{"hidden.onion:" + QByteArray::number(server.port())});
    EXPECT_EQ(resolver->timesAsked(), 0);
}

TEST_F(WebClientProxies, theUserIsNamedToTheProxyAndToNobodyElse)
{
    HttpServer server(u"127.0.0.1"_s, authority().issue(u"DNS:site.test"_s));
    server.answer("/", response(200, "page"));
    routes->all = by(httpProxy, http, u"me"_s);
    httpProxy.answer = response(200, "page");
    EXPECT_TRUE(fetch(server.url(u"/"_s, u"site.test"_s)));
    EXPECT_TRUE(fetch(QUrl(u"http://far.test/"_s)));
    ASSERT_EQ(httpProxy.heads.size(), 2);
    const QByteArray field = "\r\nProxy-Authorization: Basic " + QByteArray("me:me!").toBase64();
    for (const QByteArray &head : httpProxy.heads)
        EXPECT_TRUE(head.contains(field));
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_FALSE(server.requests[0].contains("Proxy-Authorization"));
}

TEST_F(WebClientProxies, aProxyThatIsNotThereOrRefusesIsNotGonePast)
{
    HttpServer server;
    server.answer("/", response(200, "page"));
    resolver->name(u"site.test"_s, {u"127.0.0.1"_s});
    quint16 nobody = 0;
    {
        const ProxyServer gone(ProxyServer::Kind::Http);
        nobody = gone.port();
    }
    for (const auto kind : {http, socks}) {
        routes->all = {WebRoute::Kind::Proxied, {kind, u"127.0.0.1"_s, nobody}};
        EXPECT_FALSE(fetch(server.url(u"/"_s, u"site.test"_s)));
    }
    routes->all = by(httpProxy, http);
    httpProxy.welcome = response(403, "no");
    EXPECT_FALSE(fetch(QUrl(u"https://site.test:%1/"_s.arg(server.port()))));
    httpProxy.welcome = "HTTP/1.1 200 OK\r\n\r\nHTTP/1.1 200 OK\r\n\r\nnot from there";
    EXPECT_FALSE(fetch(QUrl(u"https://site.test:%1/"_s.arg(server.port()))));
    EXPECT_EQ(server.requests.size(), 0);
    EXPECT_EQ(resolver->timesAsked(), 0);
}

TEST_F(WebClientProxies, whereAScriptDecidesNothingIsSentAndThatIsSaid)
{
    resolver->name(u"site.test"_s, {u"127.0.0.1"_s});
    for (const auto kind : {WebRoute::Kind::NeedsScript, WebRoute::Kind::Unusable}) {
        noted.clear();
        routes->all = {kind};
        EXPECT_FALSE(fetchAndNote(QUrl(u"http://site.test/"_s)));
        EXPECT_EQ(noted, std::vector{routes->all});
    }
    EXPECT_EQ(resolver->timesAsked(), 0);
}

TEST_F(WebClientProxies, thisMachineIsReachedDirectlyWithoutAsking)
{
    routes->all = {WebRoute::Kind::Unusable};
    HttpServer server;
    server.answer("/", response(200, "page"));
    EXPECT_TRUE(fetchAndNote(server.url()));
    resolver->name(u"a.localhost"_s, {u"127.0.0.1"_s});
    EXPECT_TRUE(fetch(server.url(u"/"_s, u"a.localhost"_s)));
    EXPECT_TRUE(routes->asked.isEmpty());
    EXPECT_EQ(noted, std::vector{WebRoute{}});
}

TEST_F(WebClientProxies, everyPlaceOfARedirectionHasItsOwnWay)
{
    routes->hosts[u"first.test"_s] = by(httpProxy, http);
    routes->all = {WebRoute::Kind::NeedsScript};
    httpProxy.answer = redirection("https://second.test/");
    EXPECT_FALSE(fetchAndNote(QUrl(u"http://first.test/"_s)));
    EXPECT_EQ(routes->asked, (QStringList{u"first.test"_s, u"second.test"_s}));
    EXPECT_EQ(noted, std::vector{routes->all}) << "the last one";
}

TEST_F(WebClientProxies, aPageSendsTheProxyToNoDoorBehindTheUsersWalls)
{
    routes->all = by(httpProxy, http);
    for (const char *place : {"http://far.test/plain", "https://intranet/", "https://nas.local/",
                              "https://10.0.0.1/", "https://a.internal/", "https://127.0.0.3/",
                              "https://[fd00::1]/", "https://router.lan/"}) {
        httpProxy.answer = redirection(place);
        httpProxy.heads.clear();
        EXPECT_FALSE(fetch(QUrl(u"http://far.test/"_s))) << place;
        EXPECT_EQ(httpProxy.heads.size(), 1) << place << ": the first one alone";
    }
    // What the user names is the user's business.
    httpProxy.answer = response(200, "page");
    EXPECT_TRUE(fetch(QUrl(u"http://intranet/"_s)));
}

TEST_F(WebClientProxies, aSearchForTheWayThatNeverEndsEndsWithTheTime)
{
    network.requestTimeout = 0.1;
    routes->silent = true;
    EXPECT_FALSE(fetch(QUrl(u"http://far.test/"_s)));
    ASSERT_FALSE(routes->pending.empty());
    for (const auto &late : routes->pending)
        late({});
    m_client.reset();
    for (const auto &late : routes->pending)
        late({});
    EXPECT_EQ(resolver->timesAsked(), 0);
}

TEST_F(WebClientProxies, aTunnelsAnswerWithoutEndIsLeft)
{
    network.requestTimeout = 1000;
    network.resourceTimeout = 1000;
    HttpServer proxy;
    proxy.onConnection([](QTcpSocket &socket) {
        QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, [&socket] {
            if (socket.bytesToWrite() == 0)
                socket.write(QByteArray(50'000, 'x'));
        });
        socket.write("HTTP/1.1 200 OK\r\nA: ");
    });
    routes->all = {WebRoute::Kind::Proxied, {http, u"127.0.0.1"_s, proxy.port()}};
    EXPECT_FALSE(fetch(QUrl(u"https://far.test/"_s)));
    EXPECT_TRUE(eventually([&] { return proxy.open == 0; }));
}

} // namespace corvane::test
