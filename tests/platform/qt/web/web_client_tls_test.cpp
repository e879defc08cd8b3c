// Who a server of https has to be.

#include "platform/qt/web/test_authority.h"
#include "platform/qt/web/web_client_fixture.h"

#include <QSslConfiguration>
#include <QSslSocket>

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

class WebClientTls : public WebClientTest {
protected:
    WebClientTls()
    {
        network.authorities = {authority().certificate()};
        resolver->name(u"site.test"_s, {u"127.0.0.1"_s});
        resolver->name(u"site.test."_s, {u"127.0.0.1"_s});
        resolver->name(u"other.test"_s, {u"127.0.0.1"_s});
    }

    static TestAuthority &authority()
    {
        static TestAuthority one;
        return one;
    }

    static QUrl siteOf(const HttpServer &server, const QString &target = u"/"_s)
    {
        return server.url(target, u"site.test"_s);
    }
};

const QString localhost = u"127.0.0.1"_s;

} // namespace

TEST_F(WebClientTls, aServerThatIsWhoItShouldBeIsAsked)
{
    HttpServer server(localhost, authority().issue(u"DNS:site.test"_s));
    server.answer("/", response(200, "hello"));
    const auto answer = fetch(siteOf(server));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "hello");
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_TRUE(server.requests.first().contains("Host: site.test:"));
    EXPECT_TRUE(fetch(server.url(u"/"_s, u"site.test."_s))) << "a name may end in a dot";
}

TEST_F(WebClientTls, aServerWithAnothersCertificateIsToldNothing)
{
    HttpServer server(localhost, authority().issue(u"DNS:site.test"_s));
    server.answer("/", response(200, "hello"));
    EXPECT_FALSE(fetch(server.url(u"/"_s, u"other.test"_s)));
    EXPECT_FALSE(fetch(server.url())) << "nor by the address that it happens to have";
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST_F(WebClientTls, anAddressIsCertifiedAsAnAddress)
{
    HttpServer server(localhost, authority().issue(u"IP:127.0.0.1"_s));
    server.answer("/", response(200, "hello"));
    EXPECT_TRUE(fetch(server.url()));
    EXPECT_FALSE(fetch(siteOf(server)));
}

TEST_F(WebClientTls, aCertificateThatHasExpiredIsRefused)
{
    HttpServer server(localhost, authority().issue(u"DNS:site.test"_s, -1));
    server.answer("/", response(200, "hello"));
    EXPECT_FALSE(fetch(siteOf(server)));
    EXPECT_TRUE(server.requests.isEmpty());
}

TEST_F(WebClientTls, aCertificateThatNobodyVouchesForIsRefused)
{
    HttpServer server(localhost, authority().selfSigned(u"DNS:site.test"_s));
    server.answer("/", response(200, "hello"));
    EXPECT_FALSE(fetch(siteOf(server)));

    network.authorities.clear();
    m_client.reset();
    HttpServer unknown(localhost, authority().issue(u"DNS:site.test"_s));
    EXPECT_FALSE(fetch(siteOf(unknown))) << "the test's own authority is not the system's";
    EXPECT_TRUE(server.requests.isEmpty() && unknown.requests.isEmpty());
}

TEST_F(WebClientTls, noOtherProtocolIsAgreedOn)
{
    HttpServer server(localhost, authority().issue(u"DNS:site.test"_s));
    QByteArray agreed = "none";
    server.on("/", [&](QTcpSocket &socket) {
        agreed = dynamic_cast<QSslSocket &>(socket).sslConfiguration().nextNegotiatedProtocol();
        socket.write(response(200, "hello"));
        socket.disconnectFromHost();
    });
    EXPECT_TRUE(fetch(siteOf(server)));
    EXPECT_EQ(agreed, QByteArray());
}

TEST_F(WebClientTls, aLargeBodyArrivesWholeAndOneWithoutEndIsLeft)
{
    HttpServer server(localhost, authority().issue(u"DNS:site.test"_s));
    QByteArray body;
    while (body.size() < 3'000'000)
        body += QByteArray::number(body.size()) + ' ';
    server.answer("/declared", response(200, body));
    server.answer("/until-close", "HTTP/1.1 200 OK\r\n\r\n"_ba + body);
    server.answerForEver("/for-ever", "HTTP/1.1 200 OK\r\n\r\n", body);
    const auto bodyOf = [&](const QString &target, qint64 maximum) {
        const auto answer = fetch(request(siteOf(server, target), maximum));
        return answer ? answer->body : QByteArray("nothing");
    };
    EXPECT_EQ(bodyOf(u"/declared"_s, 4'000'000), body);
    EXPECT_EQ(bodyOf(u"/until-close"_s, 4'000'000), body);
    EXPECT_EQ(bodyOf(u"/for-ever"_s, 1'000'000), body.first(1'000'000));
}

TEST_F(WebClientTls, whatIsNoTlsBringsNothing)
{
    HttpServer plain;
    plain.onConnection([](QTcpSocket &socket) {
        socket.write("HTTP/1.1 200 OK\r\n\r\nhello");
        socket.disconnectFromHost();
    });
    QUrl url = plain.url();
    url.setScheme(u"https"_s);
    EXPECT_FALSE(fetch(url));
    HttpServer secret(localhost, authority().issue(u"IP:127.0.0.1"_s));
    url = secret.url();
    url.setScheme(u"http"_s);
    EXPECT_FALSE(fetch(url));
}

TEST_F(WebClientTls, connectionsCutAtAnyStageBringNothing)
{
    HttpServer server(localhost, authority().issue(u"DNS:site.test"_s));
    for (const char *sent : {"", "HTTP/1.1 200 OK\r\nA: b\r\n",
                             "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n012345678",
                             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n0123"}) {
        server.answer("/", sent);
        EXPECT_FALSE(fetch(siteOf(server))) << sent;
    }
}

TEST_F(WebClientTls, aHandshakeThatNeverEndsIsLeft)
{
    network.requestTimeout = 0.2;
    HttpServer plain;
    plain.onConnection([](QTcpSocket &) {});
    QUrl url = plain.url();
    url.setScheme(u"https"_s);
    EXPECT_FALSE(fetch(url));
}

TEST_F(WebClientTls, theLastAddressIsNotHurriedByTheOneBefore)
{
    network.nextAddressAfter = 0;
    HttpServer server(localhost, authority().issue(u"DNS:two.test"_s));
    server.answer("/", response(200, "hello"));
    // Nobody can connect to everybody, and that is known at once.
    resolver->name(u"two.test"_s, {u"255.255.255.255"_s, localhost});
    const auto answer = fetch(server.url(u"/"_s, u"two.test"_s));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "hello");
}

TEST_F(WebClientTls, redirectionsMayLeadToHttpAndBack)
{
    HttpServer plain;
    HttpServer secret(localhost, authority().issue(u"DNS:site.test"_s));
    secret.answer("/", redirection(plain.url().toEncoded()));
    plain.answer("/", redirection(siteOf(secret, u"/end"_s).toEncoded()));
    secret.answer("/end", response(200, "end"));
    const auto answer = fetch(siteOf(secret));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->url, siteOf(secret, u"/end"_s));
}

TEST_F(WebClientTls, acrossARedirectionEachServerHasToBeWhoItShouldBe)
{
    HttpServer plain;
    HttpServer other(localhost, authority().issue(u"DNS:other.test"_s));
    plain.answer("/", redirection(siteOf(other).toEncoded()));
    EXPECT_FALSE(fetch(plain.url()));
    EXPECT_TRUE(other.requests.isEmpty());
}

} // namespace corvane::test
