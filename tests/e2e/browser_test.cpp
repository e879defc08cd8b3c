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
