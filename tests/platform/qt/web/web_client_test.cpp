// One request and its response, with servers that do right and wrong.

#include "platform/qt/web/http_exchange.h"
#include "platform/qt/web/web_client_fixture.h"

#include <QFile>
#include <QTimer>

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

/// The lines of a request's head.
QList<QByteArray> linesOf(const QByteArray &head)
{
    QList<QByteArray> lines = head.trimmed().split('\n');
    for (QByteArray &line : lines)
        line = line.trimmed();
    return lines;
}

qint64 residentBytes()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QFile::ReadOnly))
        return 0;
    constexpr qint64 pageBytes = 4096;
    return file.readAll().split(' ').value(1).toLongLong() * pageBytes;
}

} // namespace

TEST_F(WebClientTest, bringsWhatTheServerAnswers)
{
    HttpServer server;
    server.answer("/page?q=1", response(200, "hello", "Content-Type: text/html\r\n"));
    const auto answer = fetch(server.url(u"/page?q=1"_s));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->statusCode, 200);
    EXPECT_EQ(answer->body, "hello");
    EXPECT_EQ(answer->expectedContentLength, 5);
    EXPECT_EQ(answer->url, server.url(u"/page?q=1"_s));
    EXPECT_EQ(answer->foundIn, AddressSpace::Loopback);
}

TEST_F(WebClientTest, completesOnTheMainThread)
{
    HttpServer server;
    server.answer("/", response(200, "hello"));
    QThread *thread = nullptr;
    client().get(request(server.url()), [&](const auto &) { thread = QThread::currentThread(); });
    ASSERT_TRUE(eventually([&] { return thread != nullptr; }));
    EXPECT_EQ(thread, QThread::currentThread());
}

TEST_F(WebClientTest, saysOfTheUserWhatItIsToldAndNothingElse)
{
    HttpServer server;
    WebRequest asked = request(server.url(u"/a b"_s));
    asked.userAgent = "Tester/1.0 (+https://x.example/)";
    asked.accept = "text/html,application/xhtml+xml";
    fetch(asked);
    ASSERT_EQ(server.requests.size(), 1);
    const QByteArray accepted = linesOf(server.requests.first()).last();
    EXPECT_TRUE(accepted.startsWith("Accept-Encoding: ")) << accepted.toStdString();
    EXPECT_EQ(linesOf(server.requests.first()),
              (QList<QByteArray>{"GET /a%20b HTTP/1.1",
                                 "Host: 127.0.0.1:" + QByteArray::number(server.port()),
                                 "User-Agent: Tester/1.0 (+https://x.example/)",
                                 "Accept: text/html,application/xhtml+xml", "Accept-Language: *",
                                 "Connection: close", accepted}));
}

TEST_F(WebClientTest, noAcceptIsSentWhereNoneIsGiven)
{
    HttpServer server;
    fetch(server.url());
    ASSERT_EQ(server.requests.size(), 1);
    EXPECT_FALSE(server.requests.first().contains("\r\nAccept:"));
}

TEST_F(WebClientTest, namePasswordAndFragmentOfAnAddressAreNotSent)
{
    HttpServer server;
    QUrl url = server.url(u"/x"_s);
    url.setUserInfo(u"user:secret"_s);
    url.setFragment(u"part"_s);
    const auto answer = fetch(url);
    ASSERT_EQ(server.requests.size(), 1);
    const QByteArray head = server.requests.first();
    EXPECT_FALSE(head.contains("user") || head.contains("secret") || head.contains("part"));
    EXPECT_FALSE(head.contains("Authorization"));
    ASSERT_TRUE(answer);
    EXPECT_FALSE(answer->url.toEncoded().contains("secret"));
}

TEST_F(WebClientTest, anAddressCannotAddLinesToTheRequest)
{
    HttpServer server;
    QUrl url = server.url();
    for (const auto &path : {u"/a\r\nX: y"_s, u"/%0d%0aX:%20y"_s, u"/a\tb"_s, u"/\u00e9\u2028"_s}) {
        url.setPath(path, QUrl::TolerantMode);
        fetch(url);
    }
    url = QUrl::fromEncoded(QByteArray(server.url().toEncoded() + "?a\r\nX: y"));
    fetch(url);
    for (const QByteArray &head : server.requests)
        EXPECT_EQ(linesOf(head).size(), 6) << head.constData();
    WebRequest odd = request(server.url());
    odd.userAgent = "a\r\nX: y";
    const qsizetype before = server.requests.size();
    EXPECT_FALSE(fetch(odd));
    EXPECT_EQ(server.requests.size(), before);
}

TEST_F(WebClientTest, neverLogsIn)
{
    HttpServer server;
    for (const char *scheme :
         {"Basic realm=\"x\"", "Digest realm=\"x\", nonce=\"y\"", "NTLM", "Negotiate", "Bearer"}) {
        server.requests.clear();
        server.answer("/", response(401, "who?", "WWW-Authenticate: "_ba + scheme + "\r\n"));
        const auto answer = fetch(server.url());
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->statusCode, 401);
        EXPECT_EQ(server.requests.size(), 1);
    }
}

TEST_F(WebClientTest, keepsNoCookiesAndNoCopies)
{
    HttpServer server;
    server.answer(
        "/",
        response(200, "x", "Set-Cookie: a=b\r\nCache-Control: max-age=99999\r\nETag: \"e\"\r\n"));
    fetch(server.url());
    fetch(server.url());
    ASSERT_EQ(server.requests.size(), 2) << "the second one is asked for, too";
    EXPECT_FALSE(server.requests.last().toLower().contains("cookie"));
    EXPECT_FALSE(server.requests.last().contains("If-None-Match"));
}

TEST_F(WebClientTest, bringsEveryFinalStatus)
{
    HttpServer server;
    for (const int status :
         {200, 201, 204, 206, 300, 304, 400, 403, 404, 410, 418, 500, 503, 599}) {
        server.answer("/", response(status, ""));
        const auto answer = fetch(server.url());
        ASSERT_TRUE(answer) << status;
        EXPECT_EQ(answer->statusCode, status);
    }
}

TEST_F(WebClientTest, otherSchemesAreNotTouched)
{
    HttpServer server;
    server.answer("/", response(200, "x"));
    for (const auto &address : {u"ftp://127.0.0.1/"_s, u"file:///etc/hostname"_s, u"data:,hello"_s,
                                u"javascript:alert(1)"_s, u"about:blank"_s, u"//127.0.0.1/"_s,
                                u"http:///x"_s, u""_s, u"http://127.0.0.1:0/"_s})
        EXPECT_FALSE(fetch(QUrl(address))) << qPrintable(address);
    EXPECT_EQ(server.connections, 0);
}

TEST_F(WebClientTest, aBodyOfExactlyTheWantedSizeAndOneMoreByteAreToldApart)
{
    // As the limit for pictures is used: one byte more than is accepted is wanted.
    constexpr qint64 limit = 4 << 20;
    HttpServer server;
    server.answer("/fits", response(200, QByteArray(limit, 'x')));
    server.answer("/larger", response(200, QByteArray(limit + 1, 'x')));
    server.answer("/huge", response(200, QByteArray(limit + 100'000, 'x')));
    const auto sizeOf = [&](const QString &target) {
        const auto answer = fetch(request(server.url(target), limit + 1));
        return answer ? answer->body.size() : -1;
    };
    EXPECT_EQ(sizeOf(u"/fits"_s), limit);
    EXPECT_EQ(sizeOf(u"/larger"_s), limit + 1);
    EXPECT_EQ(sizeOf(u"/huge"_s), limit + 1);
}

TEST_F(WebClientTest, aBodyWithoutEndIsLeftWhereEnoughHasCome)
{
    HttpServer server;
    server.answerForEver("/", "HTTP/1.1 200 OK\r\n\r\n", QByteArray(50'000, 'x'));
    server.answerForEver("/chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n",
                         "4000\r\n" + QByteArray(0x4000, 'x') + "\r\n");
    for (const auto &target : {u"/"_s, u"/chunks"_s}) {
        const auto answer = fetch(request(server.url(target), 3'000'000));
        ASSERT_TRUE(answer);
        EXPECT_EQ(answer->body.size(), 3'000'000);
        EXPECT_EQ(answer->expectedContentLength, -1);
    }
    EXPECT_LT(server.bytesTaken, 60'000'000);
}

TEST_F(WebClientTest, aHeadWithoutEndIsLeftAndItsConnectionIsClosed)
{
    // The head is at fault, and not the time.
    network.requestTimeout = 1000;
    network.resourceTimeout = 1000;
    HttpServer server;
    server.answerForEver("/fields", "HTTP/1.1 200 OK\r\n", QByteArray("A: b\r\n").repeated(1000));
    server.answerForEver("/line", "HTTP/1.1 200 OK\r\nA: ", QByteArray(50'000, 'x'));
    const QByteArray interim = "HTTP/1.1 100 Continue\r\n\r\n";
    server.answerForEver("/interim", interim, interim.repeated(100));
    server.answerForEver("/first", "HTTP/1.1 200 ", QByteArray(50'000, 'x'));
    server.answerForEver("/chunks", "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n4;",
                         QByteArray(50'000, 'x'));
    [[maybe_unused]] const qint64 before = residentBytes();
    for (const auto &target :
         {u"/fields"_s, u"/line"_s, u"/interim"_s, u"/first"_s, u"/chunks"_s}) {
        EXPECT_FALSE(fetch(server.url(target))) << qPrintable(target);
        EXPECT_TRUE(eventually([&] { return server.open == 0; })) << qPrintable(target);
    }
#ifndef __SANITIZE_ADDRESS__
    // Under the sanitizer what was freed is kept for a while, and all that came counts.
    EXPECT_LT(residentBytes() - before, 20'000'000);
#endif
    EXPECT_LT(server.bytesTaken, 40'000'000) << "what the system holds for either side, five times";
}

TEST_F(WebClientTest, aServerThatGoesOnTalkingIsLeftWhenItsTimeIsUp)
{
    network.requestTimeout = 0.3;
    network.resourceTimeout = 0.3;
    HttpServer server;
    // Slow enough to stay below every limit but the time.
    server.on("/", [](QTcpSocket &socket) {
        auto *timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("A: b\r\n"); });
        timer->start(5);
        socket.write("HTTP/1.1 200 OK\r\n");
    });
    EXPECT_FALSE(fetch(server.url()));
    EXPECT_TRUE(eventually([&] { return server.open == 0; }));
}

TEST_F(WebClientTest, connectionsCutAtAnyStageBringNothing)
{
    HttpServer server;
    for (const char *sent : {"", "HTTP/1.1 2", "HTTP/1.1 200 OK\r\nA: b\r\n",
                             "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n",
                             "HTTP/1.1 200 OK\r\nContent-Length: 10\r\n\r\n012345678",
                             "HTTP/1.1 404 Not Found\r\nContent-Length: 10\r\n\r\n012345678",
                             "HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n5\r\n0123"}) {
        server.answer("/", sent);
        EXPECT_FALSE(fetch(server.url())) << sent;
    }
    server.onConnection([](QTcpSocket &socket) { socket.abort(); });
    EXPECT_FALSE(fetch(server.url()));
}

TEST_F(WebClientTest, aRequestThatWasNotAnsweredIsNotSentAgain)
{
    HttpServer server;
    server.answer("/", "");
    EXPECT_FALSE(fetch(server.url()));
    EXPECT_EQ(server.connections, 1);
}

TEST_F(WebClientTest, aBodyThatIsNotCodedAsItSaysBringsNothing)
{
    HttpServer server;
    server.answer("/", response(200, "hello", "Content-Encoding: gzip\r\n"));
    EXPECT_FALSE(fetch(server.url()));
}

TEST_F(WebClientTest, interimAnswersAreNotTheAnswer)
{
    HttpServer server;
    server.answer("/", "HTTP/1.1 100 Continue\r\n\r\n" + response(200, "x"));
    const auto answer = fetch(server.url());
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->statusCode, 200);
    EXPECT_EQ(answer->body, "x");
}

TEST_F(WebClientTest, aLengthThatIsNoneIsUnknown)
{
    HttpServer server;
    for (const char *length : {"x", "99999999999999999999999", "-1"}) {
        server.answer("/", "HTTP/1.1 200 OK\r\nContent-Length: "_ba + length + "\r\n\r\nhello");
        const auto answer = fetch(server.url());
        EXPECT_EQ(answer ? answer->expectedContentLength : -1, -1) << length;
    }
}

TEST_F(WebClientTest, whatIsNoHttpBringsNothing)
{
    HttpServer server;
    for (const char *sent : {"<html>hello</html>\r\n\r\n", "SSH-2.0-OpenSSH\r\n\r\n",
                             "220 smtp ready\r\n\r\n", "HTTP/2 200\r\n\r\n"}) {
        server.answer("/", sent);
        EXPECT_FALSE(fetch(server.url())) << sent;
    }
}

TEST_F(WebClientTest, nobodyThereBringsNothing)
{
    QUrl url;
    {
        const HttpServer server;
        url = server.url();
    }
    EXPECT_FALSE(fetch(url));
    EXPECT_FALSE(fetch(QUrl(u"http://unknown.test/"_s)));
}

TEST_F(WebClientTest, aCompressedBodyArrivesAsItWasAndNoLargerThanWanted)
{
    const QByteArray text(2'000'000, 'x');
    constexpr qsizetype lengthThatTheToolkitPutsInFront = 4;
    const QByteArray zipped = qCompress(text).sliced(lengthThatTheToolkitPutsInFront);
    HttpServer server;
    server.answer("/", response(200, zipped, "Content-Encoding: deflate\r\n"));
    const auto answer = fetch(request(server.url(), 3'000'000));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, text);
    EXPECT_EQ(answer->expectedContentLength, -1);
    const auto part = fetch(request(server.url(), 1'000'000));
    ASSERT_TRUE(part);
    EXPECT_EQ(part->body.size(), 1'000'000);
}

TEST_F(WebClientTest, aBombSwellsNoFartherThanWanted)
{
    constexpr qsizetype lengthThatTheToolkitPutsInFront = 4;
    constexpr qsizetype headOfDeflate = 2;
    const QByteArray bomb
        = qCompress(QByteArray(200'000'000, '\0')).sliced(lengthThatTheToolkitPutsInFront);
    const QByteArray headOfGzip("\x1f\x8b\x08\0\0\0\0\0\0\xff", 10);
    HttpServer server;
    server.answer("/deflate", response(200, bomb, "Content-Encoding: deflate\r\n"));
    server.answer(
        "/gzip",
        response(200, headOfGzip + bomb.sliced(headOfDeflate), "Content-Encoding: gzip\r\n"));
    const qint64 before = residentBytes();
    for (const auto &target : {u"/deflate"_s, u"/gzip"_s}) {
        const auto answer = fetch(request(server.url(target), 3'000'000));
        ASSERT_TRUE(answer) << qPrintable(target);
        EXPECT_EQ(answer->body.size(), 3'000'000);
    }
    EXPECT_LT(residentBytes() - before, 50'000'000);
}

TEST_F(WebClientTest, aBodyEndsWhereItWasSaidToEnd)
{
    HttpServer server;
    server.answer("/", "HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nhello and more");
    const auto answer = fetch(server.url());
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "hello");
}

TEST_F(WebClientTest, theHostIsNamedAsTheAddressNamesIt)
{
    HttpServer server;
    resolver->name(u"xn--bcher-kva.test"_s, {u"127.0.0.1"_s});
    fetch(server.url(u"/"_s, u"b\u00fccher.test"_s));
    fetch(server.url(u"/"_s, u"LOCAL.Test"_s));
    ASSERT_EQ(server.requests.size(), 2);
    const QByteArray port = QByteArray::number(server.port());
    EXPECT_EQ(linesOf(server.requests[0])[1], QByteArray("Host: xn--bcher-kva.test:" + port));
    EXPECT_EQ(linesOf(server.requests[1])[1], QByteArray("Host: local.test:" + port));
}

TEST_F(WebClientTest, theHostIsNamedWithoutUsualPorts)
{
    const auto hostIn = [](const QString &address) {
        HttpExchange::Plan plan;
        plan.url = QUrl(address);
        const auto request = HttpExchange::requestFor(plan);
        EXPECT_TRUE(request);
        return request ? linesOf(*request).value(1) : QByteArray();
    };
    EXPECT_EQ(hostIn(u"http://a.test:80/"_s), "Host: a.test");
    EXPECT_EQ(hostIn(u"https://a.test:443"_s), "Host: a.test");
    EXPECT_EQ(hostIn(u"https://a.test:80/"_s), "Host: a.test:80");
    EXPECT_EQ(hostIn(u"http://[fe80::1%25eth0]:8080/"_s), "Host: [fe80::1]:8080");
    EXPECT_EQ(hostIn(u"http://a.test?q"_s), "Host: a.test");
}

TEST_F(WebClientTest, speaksIpv6)
{
    HttpServer server(u"::1"_s);
    if (server.port() == 0)
        GTEST_SKIP() << "this machine has no IPv6";
    server.answer("/", response(200, "six"));
    const auto answer = fetch(server.url());
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "six");
    EXPECT_TRUE(server.requests.first().contains("Host: [::1]:"));
    EXPECT_EQ(answer->foundIn, AddressSpace::Loopback);
}

TEST_F(WebClientTest, triesAHostsNextAddressWhereOneDoesNotAnswer)
{
    HttpServer server;
    server.answer("/", response(200, "here"));
    resolver->name(u"two.test"_s, {u"127.0.0.9"_s, u"::1"_s, u"127.0.0.1"_s});
    const auto answer = fetch(server.url(u"/"_s, u"two.test"_s));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->body, "here");
}

TEST_F(WebClientTest, doesNotSleepOverAServerThatSaysNothing)
{
    network.requestTimeout = 0.2;
    network.resourceTimeout = 1000;
    HttpServer server;
    server.on("/nothing", [](QTcpSocket &) {});
    server.on("/head", [](QTcpSocket &socket) { socket.write("HTTP/1.1 200 OK\r\n"); });
    server.on("/body", [](QTcpSocket &socket) { socket.write("HTTP/1.1 200 OK\r\n\r\nx"); });
    for (const auto &target : {u"/nothing"_s, u"/head"_s, u"/body"_s})
        EXPECT_FALSE(fetch(server.url(target)));
}

TEST_F(WebClientTest, aTrickleEndsWithTheTimeForAll)
{
    network.requestTimeout = 1000;
    network.resourceTimeout = 0.4;
    HttpServer server;
    server.on("/", [](QTcpSocket &socket) {
        auto *timer = new QTimer(&socket);
        QObject::connect(timer, &QTimer::timeout, &socket, [&socket] { socket.write("x"); });
        timer->start(20);
        socket.write("HTTP/1.1 200 OK\r\n\r\n");
    });
    EXPECT_FALSE(fetch(server.url()));
}

TEST_F(WebClientTest, theTimeForAllIsForAllRedirectionsTogether)
{
    network.resourceTimeout = 0.5;
    HttpServer server;
    server.on("/", [](QTcpSocket &socket) {
        QTimer::singleShot(100, &socket, [&socket] {
            socket.write(redirection("/"));
            socket.disconnectFromHost();
        });
    });
    EXPECT_FALSE(fetch(server.url()));
    EXPECT_LE(server.requests.size(), WebClient::maximumRedirects) << "it is not their number";
}

TEST_F(WebClientTest, aNameServerThatSaysNothingEndsWithTheTime)
{
    network.requestTimeout = 0.1;
    resolver->silent = true;
    EXPECT_FALSE(fetch(QUrl(u"http://silent.test/"_s)));
    ASSERT_FALSE(resolver->pending.empty());
    // Whoever answers too late speaks to nobody.
    for (const auto &late : resolver->pending)
        late({QHostAddress(QHostAddress::LocalHost)});
    m_client.reset();
    for (const auto &late : resolver->pending)
        late({QHostAddress(QHostAddress::LocalHost)});
}

TEST_F(WebClientTest, afterItsEndNothingIsCompleted)
{
    HttpServer server;
    server.on("/", [](QTcpSocket &) {});
    server.answer("/done", response(200, "x"));
    bool isCompleted = false;
    for (int i = 0; i < 10; ++i)
        client().get(request(server.url()), [&](const auto &) { isCompleted = true; });
    ASSERT_TRUE(eventually([&] { return server.requests.size() >= 6; }));
    m_client.reset();
    EXPECT_FALSE(isCompleted);

    // An answer that is on its way to the main thread already.
    client().get(request(server.url(u"/done"_s)), [&](const auto &) { isCompleted = true; });
    m_client.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isCompleted);
}

TEST_F(WebClientTest, endsAtOnceWhateverIsUnderWay)
{
    resolver->silent = true;
    HttpServer server;
    client().get(request(QUrl(u"http://silent.test/"_s)), [](const auto &) {});
    ASSERT_TRUE(eventually([&] { return resolver->timesAsked() == 1; }));
    m_client.reset();
}

TEST_F(WebClientTest, aCompletionMayAskForMoreAndMayEndTheClient)
{
    HttpServer server;
    server.answer("/", response(200, "x"));
    int completed = 0;
    client().get(request(server.url()), [&](const auto &) {
        ++completed;
        client().get(request(server.url()), [&](const auto &) {
            ++completed;
            m_client.reset();
        });
    });
    EXPECT_TRUE(eventually([&] { return completed == 2; }));
}

TEST_F(WebClientTest, hundredsOfRequestsWaitForTheirTurn)
{
    HttpServer server;
    int open = 0;
    int most = 0;
    server.on("/", [&](QTcpSocket &socket) {
        most = std::max(most, ++open);
        QTimer::singleShot(2, &socket, [&] {
            --open;
            socket.write(response(200, "x"));
            socket.disconnectFromHost();
        });
    });
    int completed = 0;
    for (int i = 0; i < 300; ++i) {
        client().get(request(server.url()), [&](const std::optional<WebResponse> &answer) {
            completed += answer ? 1 : 0;
        });
    }
    EXPECT_TRUE(eventually([&] { return completed == 300; })) << completed;
    EXPECT_LE(most, 6);
}

} // namespace corvane::test
