// Links and pictures out of real browsers.

#include "e2e/desktop/browser.h"
#include "e2e/desktop_test.h"

#include <QBuffer>
#include <QImage>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

class FromBrowser : public DesktopTest, public testing::WithParamInterface<Browser::Kind> {
protected:
    void SetUp() override
    {
        DesktopTest::SetUp();
        if (!Browser::isInstalled(GetParam()))
            GTEST_SKIP() << "this browser is not installed";
        m_picture = QImage(40, 30, QImage::Format_RGB32);
        m_picture.fill(QColor(200, 30, 90));
        QBuffer buffer(&m_png);
        m_picture.save(&buffer, "png");
    }

    QImage m_picture;
    QByteArray m_png;
};

std::string browserName(const testing::TestParamInfo<Browser::Kind> &kind)
{
    return kind.param == Browser::Kind::Chromium ? "chromium" : "firefox";
}

INSTANTIATE_TEST_SUITE_P(, FromBrowser,
                         testing::Values(Browser::Kind::Chromium, Browser::Kind::Firefox),
                         browserName);

TEST_P(FromBrowser, aLinkIsKeptAsItsAddress)
{
    Browser browser(m_desktop, GetParam(), u"http://corvane.example/a/b"_s, m_png,
                    QRect(60, 200, 700, 600));
    ASSERT_EQ(browser.problem(), QString());
    start({{}, "settings.linkPreviews=false\n", {}});

    hands().beginDrag(browser.link(), QPoint(756, 0));
    dropOnShelf();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    focusShelf(corvane().at(38, 22));
    hands().key('c', {keys::control});
    EXPECT_EQ(clipboardText("http://corvane.example/a/b"), "http://corvane.example/a/b");
}

/// Dropping a link to a page that has a title, a site and a picture of its own.
class LinkPreview : public FromBrowser {
protected:
    static constexpr QRgb cardColour = qRgb(20, 160, 230);

    void dropTheLink(const QByteArray &settings)
    {
        const QString site = Browser::site(m_desktop);
        QDir().mkpath(site);
        QFile page(site + u"/article.html"_s);
        ASSERT_TRUE(page.open(QFile::WriteOnly));
        page.write("<!doctype html><title>not this one</title>"
                   "<meta property=og:title content=Hi><meta property=og:site_name content=Us>"
                   "<meta property=og:image content=/card.png>");
        page.close();
        QImage card(64, 64, QImage::Format_RGB32);
        card.fill(cardColour);
        ASSERT_TRUE(card.save(site + u"/card.png"_s));

        m_browser = std::make_unique<Browser>(m_desktop, GetParam(), u"article.html"_s, m_png,
                                              QRect(60, 200, 700, 600));
        ASSERT_EQ(m_browser->problem(), QString());
        start({{}, settings, {}});
        hands().beginDrag(m_browser->link(), QPoint(756, 0));
        dropOnShelf();
        ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    }

    bool showsTheCard()
    {
        const QRect thumbnail(corvane().at(38, 22), QSize(1, 1));
        return (server().picture(thumbnail).pixel(0, 0) | 0xff000000) == cardColour;
    }

    /// Where a title of two letters leaves nothing to read, and an address does not.
    bool isBlankBehindTwoLetters()
    {
        const QImage strip = server().picture(QRect(corvane().at(80, 6), QSize(50, 32)));
        for (int y = 0; y < strip.height(); ++y) {
            for (int x = 0; x < strip.width(); ++x) {
                if (strip.pixel(x, y) != strip.pixel(0, 0))
                    return false;
            }
        }
        return true;
    }

    std::unique_ptr<Browser> m_browser;
};

INSTANTIATE_TEST_SUITE_P(, LinkPreview,
                         testing::Values(Browser::Kind::Chromium, Browser::Kind::Firefox),
                         browserName);

TEST_P(LinkPreview, aLinkShowsItsPagesPictureTitleAndSite)
{
    dropTheLink({});
    EXPECT_TRUE(eventually([&] { return showsTheCard(); }));
    EXPECT_TRUE(m_browser->requests().contains("GET /article.html"));
    EXPECT_TRUE(eventually([&] { return isBlankBehindTwoLetters(); }));
}

TEST_P(LinkPreview, whereTheUserWantsNoneNothingIsFetched)
{
    dropTheLink("settings.linkPreviews=false\n");
    ASSERT_TRUE(corvane().waitUntilReady()) << "it does nothing more";
    EXPECT_FALSE(showsTheCard());
    EXPECT_FALSE(isBlankBehindTwoLetters());
    EXPECT_FALSE(m_browser->requests().contains("/article.html"))
        << m_browser->requests().constData();
}

TEST_P(FromBrowser, aPictureIsKept)
{
    Browser browser(m_desktop, GetParam(), u"http://corvane.example/a/b"_s, m_png,
                    QRect(60, 200, 700, 600));
    ASSERT_EQ(browser.problem(), QString());
    start();

    hands().beginDrag(browser.picture(), QPoint(756, 0));
    dropOnShelf();
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    if (GetParam() == Browser::Kind::Firefox) {
        // It hands over its original file, which nothing has turned into another picture.
        ASSERT_EQ(corvane().spooled().size(), 1);
        QFile file(corvane().spool() + u'/' + corvane().spooled().first());
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        EXPECT_EQ(file.readAll(), m_png);
    }
}

} // namespace
} // namespace corvane::e2e
