// Files that are fetched piece by piece, and requests that only https will do for.

#include "platform/qt/web/test_authority.h"
#include "platform/qt/web/web_client_fixture.h"

#include <QTimer>

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

class WebDownloads : public WebClientTest {
protected:
    WebDownloads()
    {
        network.authorities = {authority().certificate()};
        resolver->name(u"site.test"_s, {u"127.0.0.1"_s});
    }

    static TestAuthority &authority()
    {
        static TestAuthority one;
        return one;
    }

    std::optional<WebResponse> download(const WebRequest &request)
    {
        std::optional<WebResponse> result;
        bool isDone = false;
        client().download({request,
                           [this](const QByteArray &piece) {
                               const std::lock_guard lock(mutex);
                               largestPiece = std::max(largestPiece, piece.size());
                               taken += piece;
                               return !isFull;
                           },
                           cancellation},
                          [&](std::optional<WebResponse> response) {
                              EXPECT_FALSE(isDone) << "completed twice";
                              isDone = true;
                              result = std::move(response);
                          });
        EXPECT_FALSE(isDone) << "completed inside the call";
        EXPECT_TRUE(eventually([&] {
            const std::lock_guard lock(mutex);
            if (cancelsAfter && taken.size() >= *cancelsAfter)
                cancellation->cancel();
            return isDone;
        }));
        return result;
    }

    static WebRequest securely(const QUrl &url)
    {
        WebRequest asked = request(url, 10'000'000);
        asked.mustBeSecure = true;
        return asked;
    }

    std::shared_ptr<Cancellation> cancellation = std::make_shared<Cancellation>();
    std::mutex mutex;
    QByteArray taken;
    qsizetype largestPiece = 0;
    bool isFull = false;
    std::optional<qsizetype> cancelsAfter;
};

QByteArray pattern(qsizetype size)
{
    QByteArray bytes;
    for (qsizetype i = 0; i < size; ++i)
        bytes += static_cast<char>(i * 31 + i / 251);
    return bytes;
}

} // namespace

TEST_F(WebDownloads, aFileArrivesInPiecesAndIsNotHeldInMemory)
{
    const QByteArray file = pattern(3'000'000);
    HttpServer server;
    server.answer("/file", response(200, file));
    const auto answer = download(request(server.url(u"/file"_s), 10'000'000));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->statusCode, 200);
    EXPECT_EQ(answer->expectedContentLength, file.size());
    EXPECT_TRUE(answer->body.isEmpty());
    EXPECT_TRUE(taken == file);
    EXPECT_LE(largestPiece, 65'536);
}

TEST_F(WebDownloads, whatIsNoFileIsNotTaken)
{
    HttpServer server;
    server.answer("/gone", response(404, "a page that says so"));
    const auto answer = download(request(server.url(u"/gone"_s)));
    ASSERT_TRUE(answer);
    EXPECT_EQ(answer->statusCode, 404);
    EXPECT_TRUE(taken.isEmpty());
}

TEST_F(WebDownloads, oneThatIsShorterThanDeclaredFails)
{
    HttpServer server;
    server.answer("/file", "HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\n" + pattern(50));
    EXPECT_FALSE(download(request(server.url(u"/file"_s))));
    EXPECT_EQ(taken.size(), 50);
}

TEST_F(WebDownloads, nothingPastTheLimitIsTaken)
{
    HttpServer server;
    server.answerForEver("/file", "HTTP/1.1 200 OK\r\n\r\n", QByteArray(10'000, 'x'));
    EXPECT_TRUE(download(request(server.url(u"/file"_s), 123'456)));
    EXPECT_EQ(taken.size(), 123'456);
}

TEST_F(WebDownloads, aPieceThatIsNotTakenEndsIt)
{
    isFull = true;
    HttpServer server;
    server.answerForEver("/file", "HTTP/1.1 200 OK\r\n\r\n", QByteArray(10'000, 'x'));
    EXPECT_FALSE(download(request(server.url(u"/file"_s), 100'000'000)));
    EXPECT_LE(taken.size(), 65'536);
}

TEST_F(WebDownloads, oneThatIsCancelledEnds)
{
    cancelsAfter = 100'000;
    HttpServer server;
    server.answerForEver("/file", "HTTP/1.1 200 OK\r\n\r\n", QByteArray(10'000, 'x'));
    EXPECT_FALSE(download(request(server.url(u"/file"_s), 1'000'000'000'000)));
}

TEST_F(WebDownloads, oneThatIsCancelledEndsThoughTheServerIsSilent)
{
    cancelsAfter = 0;
    HttpServer server;
    server.on("/file", [](QTcpSocket &) {});
    EXPECT_FALSE(download(request(server.url(u"/file"_s))));
}

TEST_F(WebDownloads, aServerThatFallsSilentIsLeft)
{
    network.downloadSilenceTimeout = 0.2;
    HttpServer server;
    server.on("/file", [](QTcpSocket &socket) {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nx");
    });
    EXPECT_FALSE(download(request(server.url(u"/file"_s))));
    EXPECT_EQ(taken, "x");
}

TEST_F(WebDownloads, aFileThatNeverEndsIsLeft)
{
    network.downloadWholeTimeout = 0.3;
    HttpServer server;
    server.answerForEver("/file", "HTTP/1.1 200 OK\r\n\r\n", QByteArray(10, 'x'));
    EXPECT_FALSE(download(request(server.url(u"/file"_s), 1'000'000'000'000)));
}

TEST_F(WebDownloads, aFileMayTakeLongerThanAPage)
{
    network.requestTimeout = 0.05;
    network.resourceTimeout = 0.05;
    HttpServer server;
    server.on("/file", [](QTcpSocket &socket) {
        QTimer::singleShot(300, &socket, [&socket] {
            socket.write(response(200, "late"));
            socket.disconnectFromHost();
        });
    });
    EXPECT_TRUE(download(request(server.url(u"/file"_s))));
    EXPECT_EQ(taken, "late");
}

TEST_F(WebDownloads, plainHttpWillDoOnThisMachineAlone)
{
    HttpServer here;
    here.answer("/", response(200, "here"));
    EXPECT_TRUE(fetch(securely(here.url())));
    EXPECT_TRUE(download(securely(here.url())));
    HttpServer nearby(u"127.0.0.3"_s);
    nearby.answer("/", response(200, "there"));
    EXPECT_FALSE(fetch(securely(nearby.url())));
    HttpServer internet(u"127.0.0.2"_s);
    internet.answer("/", response(200, "far"));
    EXPECT_FALSE(download(securely(internet.url(u"/"_s, u"public.test"_s))));
    EXPECT_EQ(nearby.connections + internet.connections, 0);
}

TEST_F(WebDownloads, httpsWillDoAnywhere)
{
    resolver->name(u"far.test"_s, {u"127.0.0.2"_s});
    HttpServer server(u"127.0.0.2"_s, authority().issue(u"DNS:far.test"_s));
    server.answer("/", response(200, "far"));
    EXPECT_TRUE(download(securely(server.url(u"/"_s, u"far.test"_s))));
    EXPECT_EQ(taken, "far");
}

TEST_F(WebDownloads, noRedirectionLeadsToHttpNotEvenOnThisMachine)
{
    HttpServer plain;
    plain.answer("/", response(200, "plain"));
    HttpServer server(u"127.0.0.1"_s, authority().issue(u"DNS:site.test"_s));
    server.answer("/", redirection(plain.url().toEncoded()));
    EXPECT_FALSE(fetch(securely(server.url(u"/"_s, u"site.test"_s))));
    EXPECT_FALSE(download(securely(server.url(u"/"_s, u"site.test"_s))));
    plain.answer("/again", redirection("/"));
    EXPECT_FALSE(fetch(securely(plain.url(u"/again"_s))));
    EXPECT_EQ(plain.requests.size(), 1) << "of the last one, which came from here";
    EXPECT_TRUE(taken.isEmpty());
}

TEST_F(WebDownloads, redirectionsMayLeadToHttps)
{
    HttpServer server(u"127.0.0.1"_s, authority().issue(u"DNS:site.test"_s));
    server.answer("/file", response(200, "file"));
    server.answer("/", redirection("/file"));
    EXPECT_TRUE(download(securely(server.url(u"/"_s, u"site.test"_s))));
    EXPECT_EQ(taken, "file");
}

} // namespace corvane::test
