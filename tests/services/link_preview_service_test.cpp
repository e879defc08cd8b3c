#include "fakes/fake_image_codec.h"
#include "fakes/fake_web_client.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "services/link_preview_service.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <thread>

namespace corvane {
namespace {

const QUrl link(QStringLiteral("https://example.org/a/page"));

struct LinkPreviewServiceTest : testing::Test {
    LinkPreviewSource::Completion completion()
    {
        return [this](const std::optional<LinkPreview> &preview) {
            ++completions;
            result = preview;
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
        };
    }
    void load(const QUrl &url = link)
    {
        service->load(
            url, [] { return true; }, completion());
    }
    /// Whatever is under way beside the web, to its end.
    void settle()
    {
        work.runAll();
        clock.runPending();
        work.runAll();
        clock.runPending();
    }
    void givePage(const QByteArray &html)
    {
        web.answerWith(web.requests.size() - 1, html);
        settle();
    }
    void givePicture(const QByteArray &body) { givePage(body); }

    /// Loads a page that is served in this way, and tells what came of it.
    std::optional<LinkPreview> previewOf(const WebResponse &response)
    {
        load();
        web.answer(web.requests.size() - 1, response);
        settle();
        return result;
    }

    const std::thread::id mainThread = std::this_thread::get_id();
    test::FakeWebClient web;
    test::FakeImageCodec codec;
    test::TestClock clock;
    test::FakeWorkQueue work;
    test::FakeWorkQueue slowWork;
    std::unique_ptr<LinkPreviewService> service = std::make_unique<LinkPreviewService>(
        web, codec, clock, work, slowWork,
        LinkPreviewService::Product{QStringLiteral("1.2.3"),
                                    QStringLiteral("https://corvane.example/")});
    int completions = 0;
    std::optional<LinkPreview> result;
};

const QByteArray titled = "<title>Title</title>";
const QByteArray pictured = "<title>Title</title><meta name=og:image content=/card.png>";

TEST_F(LinkPreviewServiceTest, AsksForThePageAsABrowserWould)
{
    load();
    ASSERT_EQ(web.requests.size(), 1U);
    EXPECT_EQ(web.requests[0].url, link);
    EXPECT_EQ(web.requests[0].userAgent,
              "Mozilla/5.0 (Macintosh; Intel Mac OS X) Corvane/1.2.3 (+https://corvane.example/)");
    EXPECT_EQ(web.requests[0].accept, "text/html,application/xhtml+xml");
    EXPECT_EQ(web.requests[0].maximumBytes, 3'145'728);
    EXPECT_FALSE(web.requests[0].foundIn.has_value()) << "the user gave the address";
}

TEST_F(LinkPreviewServiceTest, AsksForThePictureOnceThePageWasRead)
{
    load();
    web.answerWith(0, pictured);
    EXPECT_EQ(web.requests.size(), 1U);
    settle();
    ASSERT_EQ(web.requests.size(), 2U);
    EXPECT_EQ(web.requests[1].url, QUrl(QStringLiteral("https://example.org/card.png")));
    EXPECT_EQ(web.requests[1].userAgent, web.requests[0].userAgent);
    EXPECT_EQ(web.requests[1].accept, QByteArray());
    EXPECT_EQ(web.requests[1].maximumBytes, 4'194'305);
    EXPECT_EQ(completions, 0);
}

TEST_F(LinkPreviewServiceTest, TellsWhereThePictureWasFound)
{
    for (const AddressSpace space :
         {AddressSpace::Loopback, AddressSpace::Private, AddressSpace::Public}) {
        load();
        web.answer(web.requests.size() - 1, WebResponse{200, -1, link, pictured, space});
        settle();
        EXPECT_EQ(web.requests.back().foundIn, space);
    }
}

TEST_F(LinkPreviewServiceTest, GivesTitleSiteAndPictureOnce)
{
    codec.teach("picture", {400, 100});
    load();
    givePage(pictured + "<meta name=og:site_name content=Site>");
    givePicture("picture");
    EXPECT_EQ(completions, 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->title, QStringLiteral("Title"));
    EXPECT_EQ(result->siteName, QStringLiteral("Site"));
    ASSERT_TRUE(result->image.has_value());
    EXPECT_EQ(result->image->bitmap.size(), QSize(192, 48));
    EXPECT_EQ(result->image->size, QSizeF(192, 48)) << "a point for each pixel";
    EXPECT_EQ(codec.formats, QList{DecodingAttempt::Formats::Web}) << "no drawing of a stranger";
}

TEST_F(LinkPreviewServiceTest, ReadsBesideTheMainThreadAndAnswersOnIt)
{
    codec.teach("picture", {4, 4});
    load();
    web.answerWith(0, pictured);
    EXPECT_EQ(work.pendingCount(), 1U);
    settle();
    web.answerWith(1, "picture");
    EXPECT_EQ(work.pendingCount(), 1U);
    work.runAll();
    EXPECT_EQ(completions, 0);
    clock.runPending();
    EXPECT_EQ(completions, 1);
}

TEST_F(LinkPreviewServiceTest, GivesAPageWithoutAPictureAtOnce)
{
    load();
    givePage(titled);
    EXPECT_EQ(web.requests.size(), 1U);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->title, QStringLiteral("Title"));
    EXPECT_EQ(result->siteName, QStringLiteral("example.org"));
    EXPECT_FALSE(result->image.has_value());
}

TEST_F(LinkPreviewServiceTest, ResolvesThePictureAgainstTheFinalAddress)
{
    load();
    web.answer(0,
               WebResponse{200, -1, QUrl(QStringLiteral("http://final.example/x/y")),
                           R"(<meta property="og:image" content="/img/card.png">)"});
    settle();
    ASSERT_EQ(web.requests.size(), 2U);
    EXPECT_EQ(web.requests[1].url, QUrl(QStringLiteral("http://final.example/img/card.png")));
    web.fail(1);
    EXPECT_EQ(result->siteName, QStringLiteral("final.example"));
}

TEST_F(LinkPreviewServiceTest, TakesTheLinkWhereTheAnswerHasNoAddress)
{
    load();
    web.answer(0, WebResponse{200, -1, QUrl(), pictured});
    settle();
    EXPECT_EQ(web.requests.at(1).url, QUrl(QStringLiteral("https://example.org/card.png")));
}

TEST_F(LinkPreviewServiceTest, HasNoPreviewWhereThePageDidNotCome)
{
    load();
    web.fail(0);
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(result.has_value());
}

TEST_F(LinkPreviewServiceTest, TakesPagesOfStatus200To299)
{
    const std::map<int, bool> statuses
        = {{0, false},  {100, false}, {199, false}, {200, true},  {204, true},
           {299, true}, {300, false}, {304, false}, {404, false}, {500, false}};
    for (const auto &[status, isTaken] : statuses)
        EXPECT_EQ(previewOf({status, -1, link, titled}).has_value(), isTaken) << status;
}

TEST_F(LinkPreviewServiceTest, RefusesAPageThatIsDeclaredAtTwelveMebibytes)
{
    EXPECT_FALSE(previewOf({200, 12'582'912, link, titled}).has_value());
    EXPECT_FALSE(previewOf({200, 1LL << 40, link, titled}).has_value());
    EXPECT_TRUE(previewOf({200, 12'582'911, link, titled}).has_value());
    EXPECT_TRUE(previewOf({200, -1, link, titled}).has_value());
}

TEST_F(LinkPreviewServiceTest, ReadsNothingPastThreeMebibytes)
{
    const QByteArray tooLate = QByteArray(3'145'728, ' ') + titled;
    EXPECT_FALSE(previewOf({200, -1, link, tooLate}).has_value());
    EXPECT_TRUE(previewOf({200, -1, link, tooLate.mid(titled.size())}).has_value());
}

TEST_F(LinkPreviewServiceTest, HasNoPreviewOfAPageThatIsNotUseful)
{
    load();
    givePage("<meta name=og:site_name content=a><meta name=og:description content=b>");
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(result.has_value());
    load();
    givePage("");
    EXPECT_EQ(completions, 2);
    EXPECT_FALSE(result.has_value());
}

TEST_F(LinkPreviewServiceTest, GivesABlankTitleAsAnEmptyOne)
{
    load();
    givePage(R"(<meta property="og:title" content="   ">)");
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->title, QString());
}

TEST_F(LinkPreviewServiceTest, GivesAPictureWithoutATitle)
{
    codec.teach("picture", {4, 4});
    load();
    givePage("<meta name=twitter:image content=/card.png>");
    givePicture("picture");
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->title, QString());
    EXPECT_EQ(result->image->bitmap.size(), QSize(4, 4));
}

TEST_F(LinkPreviewServiceTest, TakesAPictureOfFourMebibytesAndNotOneByteMore)
{
    QByteArray picture(4'194'304, 'a');
    codec.teach(picture, {4, 4});
    load();
    givePage(pictured);
    givePicture(picture);
    EXPECT_TRUE(result->image.has_value());

    picture += 'a';
    codec.teach(picture, {4, 4});
    load();
    givePage(pictured);
    givePicture(picture);
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->title, QStringLiteral("Title"));
    EXPECT_FALSE(result->image.has_value());
}

TEST_F(LinkPreviewServiceTest, CountsThePicturesBytesNotWhatWasDeclared)
{
    codec.teach("picture", {4, 4});
    load();
    givePage(pictured);
    web.answer(1, WebResponse{200, 1LL << 40, link, "picture"});
    settle();
    EXPECT_TRUE(result->image.has_value());
}

TEST_F(LinkPreviewServiceTest, DoesWithoutAPictureThatDidNotCome)
{
    codec.teach("picture", {4, 4});
    for (const int status : {0, 199, 300, 404}) {
        load();
        givePage(pictured);
        web.answer(web.requests.size() - 1, WebResponse{status, -1, link, "picture"});
        settle();
        ASSERT_TRUE(result.has_value());
        EXPECT_FALSE(result->image.has_value()) << status;
    }
    load();
    givePage(pictured);
    web.fail(web.requests.size() - 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_FALSE(result->image.has_value());
    EXPECT_EQ(completions, 5);
}

TEST_F(LinkPreviewServiceTest, DoesWithoutAPictureThatIsNone)
{
    load();
    givePage(pictured);
    givePicture("broken");
    EXPECT_EQ(completions, 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_FALSE(result->image.has_value());
}

TEST_F(LinkPreviewServiceTest, FetchesNothingButTheWeb)
{
    for (const char *other : {"ftp://x/a", "file:///etc/passwd", "data:text/html,<title>a",
                              "mailto:a@b", "javascript:a", "//x/a", ""}) {
        result = LinkPreview{};
        const int before = completions;
        load(QUrl(QString::fromLatin1(other)));
        EXPECT_EQ(completions, before) << "not inside the call";
        settle();
        EXPECT_EQ(completions, before + 1);
        EXPECT_FALSE(result.has_value()) << other;
    }
    EXPECT_TRUE(web.requests.empty());
    load(QUrl(QStringLiteral("HTTP://EXAMPLE.ORG/")));
    EXPECT_EQ(web.requests.size(), 1U);
}

TEST_F(LinkPreviewServiceTest, FetchesNoPictureButFromTheWeb)
{
    for (const char *other :
         {"file:///etc/passwd", "data:image/png;base64,AAAA", "ftp://x/a.png"}) {
        load();
        givePage(titled + "<meta name=og:image content='" + other + "'>");
        EXPECT_FALSE(web.requests.back().url.toEncoded() == other);
        ASSERT_TRUE(result.has_value()) << other;
        EXPECT_FALSE(result->image.has_value());
    }
    EXPECT_EQ(web.requests.size(), 3U);
}

TEST_F(LinkPreviewServiceTest, ShortensTitlesAtACharacter)
{
    const QString thousand = QString(999, QLatin1Char('a')) + QStringLiteral("e\u0301");
    load();
    givePage("<title>" + (thousand + QStringLiteral("\u0301b")).toUtf8()
             + "</title><meta name=og:site_name content='" + QByteArray(100'000, 's') + "'>");
    ASSERT_TRUE(result.has_value());
    EXPECT_EQ(result->title, thousand + QStringLiteral("\u0301"));
    EXPECT_EQ(result->siteName, QString(1000, QLatin1Char('s')));
    load();
    givePage("<title>" + QByteArray("e\xcc\x81").repeated(1'000'000) + "</title>");
    EXPECT_EQ(result->title, QStringLiteral("e\u0301").repeated(1000));
    load();
    givePage("<title>a" + QByteArray("\xcc\x81").repeated(1'000'000) + "</title>");
    EXPECT_LE(result->title.size(), 16'000);
}

TEST_F(LinkPreviewServiceTest, RunsFourLoadsAtATimeNewestFirst)
{
    const auto url = [](int index) { return QUrl(QStringLiteral("http://x/%1").arg(index)); };
    for (int i = 0; i < 7; ++i)
        load(url(i));
    ASSERT_EQ(web.requests.size(), 4U);
    EXPECT_EQ(web.requests[3].url, url(3));
    web.fail(1);
    ASSERT_EQ(web.requests.size(), 5U);
    EXPECT_EQ(web.requests[4].url, url(6));
    load(url(7));
    web.answerWith(0, titled);
    EXPECT_EQ(web.requests.size(), 5U) << "a page that is being read still counts";
    settle();
    ASSERT_EQ(web.requests.size(), 6U);
    EXPECT_EQ(web.requests[5].url, url(7));
    web.answerWith(2, pictured);
    settle();
    ASSERT_EQ(web.requests.size(), 7U) << "the same load's picture";
    EXPECT_EQ(web.requests[6].url, QUrl(QStringLiteral("http://x/card.png")));
    web.fail(6);
    EXPECT_EQ(web.requests.at(7).url, url(5));
}

TEST_F(LinkPreviewServiceTest, APictureThatTakesLongKeepsNoOtherLoadWaiting)
{
    codec.teach("slow", {400, 100});
    codec.slow << "slow";
    for (std::size_t i = 0; i < LinkPreviewService::maximumLoads; ++i) {
        load();
        givePage(pictured);
        givePicture("slow");
    }
    EXPECT_EQ(completions, 0);
    EXPECT_EQ(slowWork.pendingCount(), LinkPreviewService::maximumLoads);
    codec.teach("picture", {4, 4});
    load();
    givePage(pictured);
    givePicture("picture");
    EXPECT_EQ(completions, 1) << "it has not waited for the others";
    slowWork.runAll();
    clock.runPending();
    EXPECT_EQ(completions, 5);
    EXPECT_EQ(result->image->bitmap.size(), QSize(192, 48)) << "they have theirs in the end";
}

TEST_F(LinkPreviewServiceTest, HoldsOnlySoManyPicturesThatTakeLong)
{
    codec.teach("slow", {400, 100});
    codec.slow << "slow";
    for (std::size_t i = 0; i < LinkPreviewService::maximumSlowPictures; ++i) {
        load();
        givePage(pictured);
        givePicture("slow");
    }
    EXPECT_EQ(completions, 0);
    load();
    givePage(pictured);
    givePicture("slow");
    EXPECT_EQ(completions, 1);
    ASSERT_TRUE(result.has_value());
    EXPECT_FALSE(result->image.has_value());
    slowWork.runOne();
    clock.runPending();
    load();
    givePage(pictured);
    givePicture("slow");
    EXPECT_EQ(completions, 2) << "there is room again";
    EXPECT_EQ(slowWork.pendingCount(), LinkPreviewService::maximumSlowPictures);
}

TEST_F(LinkPreviewServiceTest, LoadsEveryLinkOfManyOnce)
{
    constexpr int count = 2000;
    for (int i = 0; i < count; ++i)
        load(QUrl(QStringLiteral("http://x/%1").arg(i)));
    for (std::size_t i = 0; i < web.requests.size(); ++i) {
        web.answerWith(i, titled);
        settle();
    }
    EXPECT_EQ(web.requests.size(), static_cast<std::size_t>(count));
    EXPECT_EQ(completions, count);
}

TEST_F(LinkPreviewServiceTest, HasBegunTheNextWhenSomebodyHearsOfOneAndEndsIt)
{
    std::size_t askedWhenTold = 0;
    for (std::size_t i = 0; i < LinkPreviewService::maximumLoads + 1; ++i) {
        service->load(
            link, [] { return true; },
            [&](const auto &) {
                askedWhenTold = web.requests.size();
                service.reset();
            });
    }
    ASSERT_EQ(web.requests.size(), LinkPreviewService::maximumLoads);
    web.fail(0);
    EXPECT_EQ(askedWhenTold, LinkPreviewService::maximumLoads + 1);
}

TEST_F(LinkPreviewServiceTest, ForgetsTheOldestOfTooManyThatWait)
{
    const auto token = std::make_shared<int>();
    const auto limit = LinkPreviewService::maximumWaiting + LinkPreviewService::maximumLoads;
    for (std::size_t i = 0; i < limit + 10; ++i)
        service->load(
            link, [token] { return true; }, completion());
    EXPECT_EQ(static_cast<std::size_t>(token.use_count()), limit + 1) << "and no more of them";
}

TEST_F(LinkPreviewServiceTest, FetchesNothingThatNobodyWantsAnyMore)
{
    bool isWanted = true;
    const auto wanted = [&isWanted] { return isWanted; };
    for (int i = 0; i < 6; ++i)
        service->load(link, wanted, completion());
    ASSERT_EQ(web.requests.size(), 4U);
    web.answerWith(0, pictured);
    isWanted = false;
    settle();
    EXPECT_EQ(web.requests.size(), 4U) << "no picture, and none of those that waited";
    for (std::size_t i = 1; i < 4; ++i)
        web.fail(i);
    EXPECT_EQ(web.requests.size(), 4U);
    isWanted = true;
    load();
    EXPECT_EQ(web.requests.size(), 5U);
}

TEST_F(LinkPreviewServiceTest, MayBeAskedAgainWhileItAnswers)
{
    int rounds = 0;
    std::function<void(const std::optional<LinkPreview> &)> again
        = [&](const std::optional<LinkPreview> &) {
              if (++rounds < 10)
                  service->load(
                      link, [] { return true; }, again);
          };
    service->load(
        link, [] { return true; }, again);
    for (std::size_t i = 0; i < web.requests.size(); ++i)
        web.fail(i);
    EXPECT_EQ(rounds, 10);
}

TEST_F(LinkPreviewServiceTest, MayBeEndedWhileItAnswers)
{
    service->load(
        link, [] { return true; }, [this](const std::optional<LinkPreview> &) { service.reset(); });
    load();
    web.fail(0);
    EXPECT_EQ(service, nullptr);
    web.fail(1);
    EXPECT_EQ(completions, 0);
}

TEST_F(LinkPreviewServiceTest, AnswersNothingOnceItIsGone)
{
    codec.teach("picture", {4, 4});
    for (int i = 0; i < 4; ++i)
        load();
    web.answerWith(0, pictured);
    settle();
    web.answerWith(4, "picture");
    work.runAll();
    web.answerWith(1, titled);
    work.runAll();
    web.answerWith(2, titled);
    load(QUrl(QStringLiteral("ftp://x/")));
    service.reset();
    settle();
    web.answerWith(3, titled);
    settle();
    EXPECT_EQ(completions, 0);
    EXPECT_EQ(web.requests.size(), 5U);
}

} // namespace
} // namespace corvane
