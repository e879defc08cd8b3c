#include "core/temporary_spool.h"
#include "fakes/fake_file_locality.h"
#include "fakes/fake_preview_documents.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "platform/base/cancellation.h"
#include "platform/system/file_url.h"
#include "services/preview_loader.h"

#include <gtest/gtest.h>

#include <thread>

namespace corvane::test {
namespace {

struct PreviewLoaderTest : testing::Test {
    auto keep()
    {
        return [this](PreviewContent content) {
            EXPECT_EQ(std::this_thread::get_id(), mainThread);
            loaded.push_back(std::move(content));
        };
    }
    void runAll()
    {
        work.runAll();
        clock.runPending();
    }

    const std::thread::id mainThread = std::this_thread::get_id();
    TemporaryFolder folder;
    FakePreviewDocuments documents;
    TestClock clock;
    FakeWorkQueue work;
    FakeFileLocality locality;
    FakeWorkQueue remoteWork;
    std::optional<PreviewLoader> loader{
        std::in_place, PreviewLoader::Context{documents, locality, clock, work, remoteWork}};
    std::vector<PreviewContent> loaded;
};

TEST_F(PreviewLoaderTest, KnowsANameWithoutTheDisk)
{
    EXPECT_EQ(loader->placeholder(QUrl(QStringLiteral("file:///nowhere/a%0Ab.txt"))).name,
              QStringLiteral("a b.txt"));
    EXPECT_EQ(work.pendingCount(), 0U);
}

TEST_F(PreviewLoaderTest, LooksAtTheFileOnAnotherThreadAndAnswersOnTheMainOne)
{
    const QUrl url = folder.url("later.txt");
    loader->load(url, {800, 600}, keep());
    // It would have been missing at the time of the call.
    folder.write("later.txt", "x");
    EXPECT_TRUE(loaded.empty());
    work.runAll();
    EXPECT_TRUE(loaded.empty());
    clock.runPending();
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_TRUE(std::holds_alternative<PreviewContent::Text>(loaded[0].body));
}

TEST_F(PreviewLoaderTest, WhatMayNeverAnswerKeepsNothingLocalWaiting)
{
    locality.remoteFolder = folder.path("remote/");
    const QUrl remote = folder.write("remote/one.txt", "1");
    const QUrl local = folder.write("two.txt", "2");
    EXPECT_TRUE(loader->mayNeverAnswer(remote));
    EXPECT_FALSE(loader->mayNeverAnswer(local));
    EXPECT_FALSE(loader->mayNeverAnswer(QUrl()));
    loader->load(remote, {800, 600}, keep());
    EXPECT_EQ(work.pendingCount(), 0U);
    EXPECT_EQ(remoteWork.pendingCount(), 1U);
    loader->load(local, {800, 600}, keep());
    runAll();
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded[0].details.name, QStringLiteral("two.txt"));
    loader->load(remote, {800, 600}, keep());
    remoteWork.runAll();
    clock.runPending();
    ASSERT_EQ(loaded.size(), 2U);
    EXPECT_EQ(loaded[1].details.name, QStringLiteral("one.txt"));
}

TEST_F(PreviewLoaderTest, ADocumentThatMayNeverAnswerIsAskedAndClosedOnItsOwnThreads)
{
    locality.remoteFolder = folder.path("remote/");
    const QUrl picture = folder.write("remote/a.png", "\x89PNG\r\n\x1a\n");
    loader->load(picture, {800, 600}, keep());
    remoteWork.runAll();
    clock.runPending();
    ASSERT_EQ(loaded.size(), 1U);
    auto document = std::get<PreviewContent::Picture>(loaded[0].body).document;
    ASSERT_NE(document, nullptr);
    loader->render(document, 0, {10, 10}, [](const auto &) {});
    EXPECT_EQ(work.pendingCount(), 0U);
    EXPECT_EQ(remoteWork.pendingCount(), 1U);
    remoteWork.runAll();
    clock.runPending();
    loaded.clear();
    EXPECT_EQ(remoteWork.pendingCount(), 0U);
    document.reset();
    EXPECT_EQ(remoteWork.pendingCount(), 1U) << "closing it";
}

TEST_F(PreviewLoaderTest, ClosesPagesBehindANetworkWithoutTheMainThreadToo)
{
    const QUrl url = folder.write("far.pdf", "%PDF-1.4");
    locality.remoteFolder = file_url::nativePath(url);
    loader->load(url, {800, 600}, keep());
    remoteWork.runAll();
    clock.runPending();
    ASSERT_EQ(loaded.size(), 1U);
    ASSERT_TRUE(std::holds_alternative<PreviewContent::Pages>(loaded[0].body));
    loaded.clear();
    EXPECT_EQ(remoteWork.pendingCount(), 1U);
}

TEST_F(PreviewLoaderTest, AnswersOnlyTheLastOfTwoLoads)
{
    loader->load(folder.write("one.txt", "1"), {800, 600}, keep());
    loader->load(folder.write("two.txt", "2"), {800, 600}, keep());
    runAll();
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded[0].details.name, QStringLiteral("two.txt"));
}

TEST_F(PreviewLoaderTest, ALoadThatHasEndedIsForgottenTooWhenANewOneBegins)
{
    loader->load(folder.write("one.txt", "1"), {800, 600}, keep());
    work.runAll();
    loader->load(folder.write("two.txt", "2"), {800, 600}, keep());
    runAll();
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded[0].details.name, QStringLiteral("two.txt"));
}

TEST_F(PreviewLoaderTest, ReadsNothingForWhatWasCancelled)
{
    loader->load(folder.write("a.png", "\x89PNG\r\n\x1a\n"), {800, 600}, keep());
    loader->cancel();
    runAll();
    EXPECT_TRUE(loaded.empty());
    EXPECT_TRUE(documents.opened.isEmpty());
}

TEST_F(PreviewLoaderTest, EndsTheDecodingThatRunsWhenSomethingElseIsLoaded)
{
    std::vector<bool> wereCancelled;
    documents.onOpen = [&](Cancellation &cancellation) {
        if (wereCancelled.empty()) {
            EXPECT_FALSE(cancellation.isCancelled());
            loader->load(folder.write("two.png", "\x89PNG\r\n\x1a\n"), {800, 600}, keep());
        }
        wereCancelled.push_back(cancellation.isCancelled());
    };
    loader->load(folder.write("one.png", "\x89PNG\r\n\x1a\n"), {800, 600}, keep());
    runAll();
    EXPECT_EQ(wereCancelled, (std::vector{true, false}));
    ASSERT_EQ(loaded.size(), 1U);
    EXPECT_EQ(loaded[0].details.name, QStringLiteral("two.png"));
}

TEST_F(PreviewLoaderTest, EndsTheDecodingThatRunsWhenItGoes)
{
    bool wasCancelled = false;
    documents.onOpen = [&](Cancellation &cancellation) {
        loader.reset();
        wasCancelled = cancellation.isCancelled();
    };
    loader->load(folder.write("one.png", "\x89PNG\r\n\x1a\n"), {800, 600}, keep());
    runAll();
    EXPECT_TRUE(wasCancelled);
}

TEST_F(PreviewLoaderTest, AnswersNothingOnceItIsGone)
{
    loader->load(folder.write("one.txt", "1"), {800, 600}, keep());
    loader->load(folder.write("two.txt", "2"), {800, 600}, keep());
    work.runOne();
    loader.reset();
    runAll();
    EXPECT_TRUE(loaded.empty());
}

TEST_F(PreviewLoaderTest, RendersPagesAndFramesUntilCancelled)
{
    const auto document = std::make_shared<FakePreviewDocuments::Document>();
    std::optional<QImage> page;
    int frames = 0;
    const auto keepPage = [&](const std::optional<QImage> &image) { page = image; };
    const auto countFrame = [&](const std::optional<PreviewDocument::Frame> &) { ++frames; };
    loader->render(document, 3, {20, 10}, keepPage);
    loader->nextFrame(document, {20, 10}, countFrame);
    runAll();
    ASSERT_TRUE(page.has_value());
    EXPECT_EQ(page->size(), QSize(20, 10));
    EXPECT_EQ(page->pixelColor(0, 0), QColor(3, 0, 0));
    EXPECT_EQ(frames, 1);
    loader->nextFrame(document, {20, 10}, countFrame);
    loader->cancel();
    runAll();
    EXPECT_EQ(frames, 1);
}

} // namespace
} // namespace corvane::test
