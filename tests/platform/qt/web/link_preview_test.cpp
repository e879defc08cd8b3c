// Link previews of pages and pictures as servers send them, through all that stands between.

#include "fakes/boasting_png.h"
#include "fakes/in_process_codec.h"
#include "platform/qt/base/qt_work_queue.h"
#include "platform/qt/web/web_client_fixture.h"
#include "services/link_preview_service.h"

namespace corvane::test {

namespace {

using namespace Qt::StringLiterals;

class LinkPreviewTest : public WebClientTest {
protected:
    std::optional<LinkPreview> load(const QUrl &url)
    {
        LinkPreviewService service(client(), codec, queue, work, work, {u"1.0"_s, u"https://x/"_s});
        std::optional<LinkPreview> result;
        bool isDone = false;
        service.load(
            url, [] { return true; },
            [&](const std::optional<LinkPreview> &preview) {
                isDone = true;
                result = preview;
            });
        EXPECT_TRUE(eventually([&] { return isDone; }));
        return result;
    }

    static QByteArray page(const QByteArray &picture)
    {
        return response(200,
                        "<title>Title</title><meta property=og:image content='" + picture + "'>",
                        "Content-Type: text/html\r\n");
    }
    /// A picture file of exactly so many bytes.
    static QByteArray png(QSize size, qsizetype bytes)
    {
        QByteArray file;
        QBuffer buffer(&file);
        buffer.open(QBuffer::WriteOnly);
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::green);
        image.save(&buffer, "PNG");
        return file.leftJustified(bytes, '\0');
    }

    test::InProcessCodec codec;
    QtWorkQueue work;
    HttpServer server;
};

} // namespace

TEST_F(LinkPreviewTest, showsThePictureThatThePageNamesFromWhereItMovedTo)
{
    server.answer("/link", redirection("/moved/page"));
    server.answer("/moved/page", page("card.png"));
    server.answer("/moved/card.png", response(200, png({400, 200}, 0)));
    const auto preview = load(server.url(u"/link"_s));
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->title, u"Title"_s);
    EXPECT_EQ(preview->siteName, u"127.0.0.1"_s);
    ASSERT_TRUE(preview->image);
    EXPECT_EQ(preview->image->bitmap.size(), QSize(192, 96));
    EXPECT_EQ(preview->image->size, QSizeF(192, 96));
}

TEST_F(LinkPreviewTest, takesAPictureOfFourMebibytesAndNotOneByteMore)
{
    constexpr qsizetype limit = 4'194'304;
    server.answer("/exact", page("/exact.png"));
    server.answer("/exact.png", response(200, png({40, 20}, limit)));
    server.answer("/more", page("/more.png"));
    server.answer("/more.png", response(200, png({40, 20}, limit + 1)));
    const auto exact = load(server.url(u"/exact"_s));
    ASSERT_TRUE(exact && exact->image);
    EXPECT_EQ(exact->image->bitmap.size(), QSize(40, 20));
    const auto more = load(server.url(u"/more"_s));
    ASSERT_TRUE(more);
    EXPECT_EQ(more->title, u"Title"_s);
    EXPECT_FALSE(more->image);
}

TEST_F(LinkPreviewTest, decodesNoPictureOfThirtyThousandByThirtyThousandPixels)
{
    server.answer("/", page("/huge.png"));
    server.answer("/huge.png", response(200, boastingPng(30'000, 30'000)));
    const auto preview = load(server.url());
    ASSERT_TRUE(preview);
    EXPECT_FALSE(preview->image);
}

TEST_F(LinkPreviewTest, refusesAPageThatIsDeclaredAtTwelveMebibytes)
{
    const auto declare = [this](const QByteArray &target, const QByteArray &length) {
        server.answerForEver(
            target, "HTTP/1.1 200 OK\r\nContent-Length: " + length + "\r\n\r\n<title>Title</title>",
            QByteArray(100'000, ' '));
    };
    declare("/refused", "12582912");
    declare("/taken", "12582911");
    EXPECT_FALSE(load(server.url(u"/refused"_s)));
    EXPECT_TRUE(load(server.url(u"/taken"_s)));
}

TEST_F(LinkPreviewTest, isThereWithoutAPictureThatWasCutOff)
{
    server.answer("/", page("/cut.png"));
    server.answer("/cut.png", response(200, png({40, 20}, 5000)).chopped(1));
    const auto preview = load(server.url());
    ASSERT_TRUE(preview);
    EXPECT_FALSE(preview->image);
}

TEST_F(LinkPreviewTest, isNoneOfAPageThatWasCutOff)
{
    server.answer("/", page("/card.png").chopped(1));
    EXPECT_FALSE(load(server.url()));
}

TEST_F(LinkPreviewTest, ofAPageOnTheInternetAsksNothingOfThisMachine)
{
    HttpServer far(u"127.0.0.2"_s);
    far.answer("/", page(server.url(u"/secret.png"_s).toEncoded()));
    const auto preview = load(far.url());
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->title, u"Title"_s);
    EXPECT_FALSE(preview->image);
    EXPECT_EQ(server.connections, 0);
}

} // namespace corvane::test
