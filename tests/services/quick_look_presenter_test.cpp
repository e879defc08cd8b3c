#include "core/drop_item.h"
#include "core/temporary_spool.h"
#include "fakes/fake_preview_panel.h"
#include "fakes/fake_work_queue.h"
#include "fakes/test_clock.h"
#include "services/preview_scratch.h"
#include "services/quick_look_presenter.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace corvane::test {
namespace {

DropItem itemOf(DropItem::Payload payload)
{
    return {std::move(payload), QStringLiteral("title"), {}, false};
}

DropItem text(const QString &string)
{
    return itemOf(DropItem::Text{string});
}

DropItem image(const UTType &type)
{
    return itemOf(DropItem::ImageBytes{QByteArrayLiteral("pixels"), type});
}

struct QuickLookPresenterTest : testing::Test {
    QStringList scratchFiles() const
    {
        return QDir(folder.directory.path()).entryList(QDir::Files | QDir::Hidden);
    }

    TemporaryFolder folder;
    FakePreviewPanel panel;
    TestClock clock;
    FakeWorkQueue work;
    std::optional<QuickLookPresenter> presenter{
        std::in_place, QuickLookPresenter::Context{panel, clock, work}, folder.path()};
};

TEST_F(QuickLookPresenterTest, HasNothingToShowAtFirst)
{
    EXPECT_EQ(presenter->numberOfPreviewItems(), 0);
    EXPECT_FALSE(presenter->previewItemAt(0).has_value());
    EXPECT_FALSE(presenter->scratchURL().has_value());
}

TEST_F(QuickLookPresenterTest, ShowsAFileItselfAndWritesNothing)
{
    const QUrl url(QStringLiteral("file:///home/a%FFb.txt"));
    presenter->present(itemOf(DropItem::File{url}));
    EXPECT_EQ(presenter->previewURL(), url);
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(scratchFiles().isEmpty());
}

TEST_F(QuickLookPresenterTest, HasAddressAndTitleInPlaceBeforeThePanelAsks)
{
    struct Asking : PreviewPanelController {
        bool acceptsPreviewPanelControl(PreviewPanel &) override { return true; }
        void beginPreviewPanelControl(PreviewPanel &) override
        {
            url = presenter->previewItemAt(0);
            title = presenter->previewItemTitle(0);
        }
        void endPreviewPanelControl(PreviewPanel &) override { }

        QuickLookPresenter *presenter = nullptr;
        std::optional<QUrl> url;
        std::optional<QString> title;
    } asking;
    asking.presenter = &*presenter;
    panel.setController(&asking);
    presenter->present(text(QStringLiteral("hello")));
    EXPECT_EQ(asking.url, presenter->scratchURL());
    EXPECT_EQ(asking.title, QStringLiteral("title"));
    panel.setController(nullptr);
}

TEST_F(QuickLookPresenterTest, GivesTheOneAddressForAnyIndex)
{
    const QUrl url(QStringLiteral("file:///home/a.txt"));
    presenter->present(itemOf(DropItem::File{url}));
    EXPECT_EQ(presenter->numberOfPreviewItems(), 1);
    for (const int index : {-1, 0, 1, 4711})
        EXPECT_EQ(presenter->previewItemAt(index), url);
}

TEST_F(QuickLookPresenterTest, NamesAScratchFileByAUuidWithoutBraces)
{
    presenter->present(text(QStringLiteral("é")));
    ASSERT_EQ(scratchFiles().size(), 1);
    static const QRegularExpression shape(QStringLiteral(
        "^Corvane-Preview-[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[0-9A-F]{4}-[0-9A-F]{12}\\.txt$"));
    EXPECT_TRUE(shape.match(scratchFiles().constFirst()).hasMatch())
        << scratchFiles().constFirst().toStdString();
    EXPECT_EQ(presenter->previewURL(), presenter->scratchURL());
    EXPECT_EQ(contents(*presenter->scratchURL()), QByteArray("\xC3\xA9"));
}

TEST_F(QuickLookPresenterTest, CallsAScratchFileByItsItemsTitleAndAFileByItsName)
{
    presenter->present(text(QStringLiteral("one")));
    EXPECT_EQ(presenter->previewItemTitle(0), QStringLiteral("title"));
    presenter->present(itemOf(DropItem::File{QUrl(QStringLiteral("file:///home/a.txt"))}));
    EXPECT_FALSE(presenter->previewItemTitle(0).has_value());
    presenter->present(
        {DropItem::Text{QStringLiteral("x")}, QStringLiteral("a\u202Eb"), {}, false});
    EXPECT_EQ(presenter->previewItemTitle(0), QStringLiteral("a\uFFFDb")) << "harmless";
}

TEST_F(QuickLookPresenterTest, LetsNobodyElseReadAScratchFile)
{
    presenter->present(text(QStringLiteral("secret")));
    struct stat status = {};
    ASSERT_EQ(::stat(file_url::nativePath(*presenter->scratchURL()).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(QuickLookPresenterTest, WritesALinkAsALineOfText)
{
    presenter->present(itemOf(DropItem::Link{QUrl(QStringLiteral("https://example.org/a b?ü"))}));
    ASSERT_TRUE(presenter->scratchURL().has_value());
    EXPECT_EQ(contents(*presenter->scratchURL()), "https://example.org/a%20b?%C3%BC");
    EXPECT_TRUE(scratchFiles().constFirst().endsWith(QLatin1String(".txt")));
}

TEST_F(QuickLookPresenterTest, WritesAPictureWithItsTypesExtension)
{
    presenter->present(image(UTType::png()));
    EXPECT_TRUE(scratchFiles().constFirst().endsWith(QLatin1String(".png")));
    EXPECT_EQ(contents(*presenter->scratchURL()), "pixels");
    presenter->present(image(UTType(QStringLiteral("image/webp"))));
    EXPECT_TRUE(scratchFiles().constFirst().endsWith(QLatin1String(".webp")));
}

TEST_F(QuickLookPresenterTest, WritesAPictureOfATypeWithoutExtensionAsPng)
{
    presenter->present(image(UTType(QStringLiteral("image/x-nobody-knows"))));
    EXPECT_TRUE(scratchFiles().constFirst().endsWith(QLatin1String(".png")));
    presenter->present(image(UTType()));
    EXPECT_TRUE(scratchFiles().constFirst().endsWith(QLatin1String(".png")));
}

TEST_F(QuickLookPresenterTest, KeepsOnlyTheSecondOfTwoScratchFiles)
{
    presenter->present(text(QStringLiteral("one")));
    const auto first = presenter->scratchURL();
    presenter->present(text(QStringLiteral("two")));
    EXPECT_FALSE(exists(*first));
    EXPECT_EQ(scratchFiles().size(), 1);
    EXPECT_EQ(contents(*presenter->scratchURL()), "two");
}

TEST_F(QuickLookPresenterTest, HidesAVisiblePanelAndStillReplacesAddressAndScratchFile)
{
    presenter->present(text(QStringLiteral("one")));
    const auto first = presenter->previewURL();
    std::optional<QUrl> whenHidden;
    panel.onOrderOut = [&] { whenHidden = presenter->previewURL(); };
    presenter->present(text(QStringLiteral("two")));
    panel.onOrderOut = nullptr;
    EXPECT_EQ(whenHidden, presenter->previewURL()) << "before it is hidden";
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(panel.log, (QStringList{QStringLiteral("orderFront"), QStringLiteral("orderOut")}));
    EXPECT_NE(presenter->previewURL(), first);
    EXPECT_EQ(contents(*presenter->previewURL()), "two");
    EXPECT_FALSE(exists(*first));
}

TEST_F(QuickLookPresenterTest, DiscardsTheScratchFileEvenWhenAFileFollows)
{
    presenter->present(text(QStringLiteral("one")));
    presenter->present(itemOf(DropItem::File{QUrl(QStringLiteral("file:///home/a.txt"))}));
    EXPECT_TRUE(scratchFiles().isEmpty());
    EXPECT_FALSE(presenter->scratchURL().has_value());
}

TEST_F(QuickLookPresenterTest, DiscardsAScratchFileOnce)
{
    presenter->present(text(QStringLiteral("one")));
    const QUrl url = *presenter->scratchURL();
    presenter->discardScratch();
    EXPECT_FALSE(exists(url));
    EXPECT_FALSE(presenter->scratchURL().has_value());
    EXPECT_EQ(presenter->previewURL(), url) << "it stays what was presented last";
    folder.write(file_url::lastPathComponent(url).toUtf8(), "somebody else's");
    presenter->discardScratch();
    EXPECT_TRUE(exists(url));
}

TEST_F(QuickLookPresenterTest, IgnoresAScratchFileThatIsGoneAlready)
{
    presenter->present(text(QStringLiteral("one")));
    ASSERT_TRUE(QFile::remove(presenter->scratchURL()->toLocalFile()));
    presenter->discardScratch();
    EXPECT_FALSE(presenter->scratchURL().has_value());
}

TEST_F(QuickLookPresenterTest, ShowsNothingWhereNothingCanBeWritten)
{
    QuickLookPresenter homeless({panel, clock, work}, "/nowhere/at/all");
    homeless.present(text(QStringLiteral("one")));
    EXPECT_TRUE(panel.log.isEmpty());
    EXPECT_FALSE(homeless.previewURL().has_value());
    EXPECT_FALSE(homeless.scratchURL().has_value());
}

TEST_F(QuickLookPresenterTest, KeepsItsScratchFileFromThoseWhoTidyUp)
{
    const QString longer(QuickLookPresenter::longestAtOnce + 1, QLatin1Char('x'));
    for (const QString &string : {QStringLiteral("short"), longer}) {
        presenter->present(text(string));
        work.runAll();
        clock.runPending();
        preview_scratch::removeLeftovers(folder.path());
        EXPECT_EQ(scratchFiles().size(), 1);
    }
    presenter->discardScratch();
    EXPECT_TRUE(scratchFiles().isEmpty());
}

TEST_F(QuickLookPresenterTest, LeavesNoScratchFileBehindAtItsEnd)
{
    presenter->present(text(QStringLiteral("one")));
    presenter.reset();
    EXPECT_TRUE(scratchFiles().isEmpty());
}

struct LongTextTest : QuickLookPresenterTest, PreviewPanelController {
    LongTextTest() { panel.setController(this); }
    ~LongTextTest() override { panel.setController(nullptr); }
    bool acceptsPreviewPanelControl(PreviewPanel &) override { return true; }
    void beginPreviewPanelControl(PreviewPanel &) override
    {
        panel.setDataSource(&*presenter);
        panel.reloadData();
    }
    void endPreviewPanelControl(PreviewPanel &) override
    {
        panel.setDataSource(nullptr);
        presenter->discardScratch();
    }

    const QString longText{QuickLookPresenter::longestAtOnce + 1, QLatin1Char('x')};
};

TEST_F(LongTextTest, IsWrittenBesideTheMainThreadAndShownThen)
{
    presenter->present(text(longText));
    EXPECT_TRUE(panel.isVisible());
    EXPECT_FALSE(panel.shown.has_value());
    EXPECT_EQ(presenter->previewItemTitle(0), QStringLiteral("title"));
    EXPECT_TRUE(scratchFiles().isEmpty());
    work.runAll();
    EXPECT_FALSE(panel.shown.has_value());
    clock.runPending();
    ASSERT_TRUE(panel.shown.has_value());
    EXPECT_EQ(panel.shown, presenter->scratchURL());
    EXPECT_EQ(contents(*panel.shown).size(), longText.size());
    panel.orderOut();
    EXPECT_TRUE(scratchFiles().isEmpty());
}

TEST_F(LongTextTest, IsNotKeptWhenThePreviewIsClosedBefore)
{
    presenter->present(text(longText));
    panel.orderOut();
    work.runAll();
    clock.runPending();
    EXPECT_TRUE(scratchFiles().isEmpty());
    EXPECT_FALSE(panel.shown.has_value());

    presenter->present(text(longText));
    work.runAll();
    // It is there, and nobody has been told yet.
    EXPECT_EQ(scratchFiles().size(), 1);
    panel.orderOut();
    EXPECT_TRUE(scratchFiles().isEmpty());
    clock.runPending();
    EXPECT_FALSE(panel.shown.has_value());
}

TEST_F(LongTextTest, IsForgottenWhenAnotherItemComes)
{
    presenter->present(text(longText));
    panel.orderOut();
    presenter->present(text(QStringLiteral("short")));
    work.runAll();
    clock.runPending();
    EXPECT_EQ(scratchFiles().size(), 1);
    EXPECT_EQ(panel.shown, presenter->scratchURL());
}

TEST_F(LongTextTest, ClosesThePreviewWhenItCannotBeWritten)
{
    presenter.emplace(QuickLookPresenter::Context{panel, clock, work}, "/nowhere/at/all");
    presenter->present(text(longText));
    EXPECT_TRUE(panel.isVisible());
    work.runAll();
    clock.runPending();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_FALSE(presenter->previewURL().has_value());
}

TEST_F(LongTextTest, LeavesNoScratchFileBehindWhenThePresenterEndsFirst)
{
    presenter->present(text(longText));
    panel.setController(nullptr);
    presenter.reset();
    work.runAll();
    clock.runPending();
    EXPECT_TRUE(scratchFiles().isEmpty());
}

} // namespace
} // namespace corvane::test
