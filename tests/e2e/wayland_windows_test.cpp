// The program's windows, its icon and what it shows of pages and pictures, in Wayland sessions.

#include "e2e/desktop/tray_panel.h"
#include "e2e/wayland_session.h"
#include "platform/qt/web/http_server.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

constexpr QSize welcomeSize{520, 560};
constexpr QSize preferencesSize{480, 560};
constexpr QRgb colour = qRgb(20, 160, 230);

QByteArray pngOf(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QBuffer::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

class WaylandWindows : public WaylandSession {
protected:
    bool isShown(QSize size)
    {
        if (!m_desktop.nested()->tellsOfWindows())
            return corvane().window(size).has_value();
        return std::ranges::any_of(m_desktop.nested()->windows(), [&](const WindowFacts &window) {
            return window.pid == corvane().program().pid() && window.frame.size() == size;
        });
    }
    bool waitUntilShown(QSize size)
    {
        return eventually([&] { return isShown(size); });
    }
    /// A key may be typed before the compositor has moved the keyboard: it is typed until it has
    /// closed the window.
    bool isClosedByTyping(QSize size, uint32_t key, std::initializer_list<uint32_t> modifiers = {})
    {
        return eventually([&] {
            hands().key(key, modifiers);
            return !isShown(size);
        });
    }
    bool hearsKeys(GtkPeer &peer, char letter)
    {
        return eventually([&] {
            hands().key(static_cast<uint32_t>(letter));
            return peer.keys().contains(QByteArray(1, letter));
        });
    }
    /// In the whole picture.
    int pixelsOfTheColour()
    {
        const QImage picture = server().picture().convertToFormat(QImage::Format_RGB32);
        int found = 0;
        for (int y = 0; y < picture.height(); ++y) {
            const auto *const line = reinterpret_cast<const QRgb *>(picture.constScanLine(y));
            found += static_cast<int>(std::count(line, line + picture.width(), colour));
        }
        return found;
    }
};

INSTANTIATE_TEST_SUITE_P(Every, WaylandWindows,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin),
                                         sessionOf(WindowManager::Mutter)),
                         nameOf);

TEST_P(WaylandWindows, thePreferencesHaveTheKeyboardUntilTheyClose)
{
    GtkPeer typing(m_desktop, {}, leftPlace());
    ASSERT_EQ(typing.problem(), QString());
    start();
    hands().click(typing.target());
    ASSERT_TRUE(hearsKeys(typing, 'k'));
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(waitUntilShown(preferencesSize));
    EXPECT_TRUE(isClosedByTyping(preferencesSize, 'w', {keys::control}));
    EXPECT_TRUE(hearsKeys(typing, 'l'));
}

TEST_P(WaylandWindows, thePreferencesHaveTheKeyboardWhenTheShelfHadItBefore)
{
    start();
    EXPECT_EQ(corvane().startAgain(), 0);
    ASSERT_TRUE(corvane().waitUntilShown());
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(waitUntilShown(preferencesSize));
    EXPECT_TRUE(isClosedByTyping(preferencesSize, 'w', {keys::control}));
}

TEST_P(WaylandWindows, theGuideComesAtTheFirstStartAndIsClosedByItsKeys)
{
    start({{}, {}, {}, false});
    ASSERT_TRUE(waitUntilShown(welcomeSize));
    EXPECT_TRUE(eventually([&] { return corvane().settings().contains("seenWelcome=true"); }));
    EXPECT_TRUE(isClosedByTyping(welcomeSize, keys::escape));
}

TEST_P(WaylandWindows, thePreviewShowsAPictureAndIsClosedByItsKeys)
{
    constexpr QSize size(400, 300);
    const QString file = makeFile(u"picture.png"_s, pngOf(size));
    start();
    keep(file);
    // The button beside the item; the thumbnail has the colour, too.
    hands().click(corvane().at(corvane().size().width() - 77, 22));
    const int enough = size.width() * size.height() / 2;
    ASSERT_TRUE(eventually([&] { return pixelsOfTheColour() > enough; }));
    EXPECT_TRUE(eventually([&] {
        hands().key(keys::escape);
        return pixelsOfTheColour() < enough;
    }));
}

TEST_P(WaylandWindows, aLinkShowsThePictureOfItsPage)
{
    test::HttpServer site;
    site.answer("/article",
                test::response(200,
                               "<!doctype html><title>Hi</title>"
                               "<meta property=og:image content=/card.png>",
                               "Content-Type: text/html\r\n"));
    site.answer("/card.png", test::response(200, pngOf({64, 64}), "Content-Type: image/png\r\n"));
    start();
    Program asking(CorvaneProgram::path(), {site.url(u"/article"_s).toString()},
                   m_desktop.environment());
    ASSERT_EQ(asking.waitForEnd(), 0);
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    EXPECT_TRUE(eventually([&] {
        return (server().picture({corvane().at(38, 22), QSize(1, 1)}).pixel(0, 0) | 0xff000000U)
            == colour;
    }));
}

TEST_P(WaylandWindows, thePanelsIconShowsTheShelfByItsMenu)
{
    NotifierPanel panel(m_desktop);
    ASSERT_TRUE(panel.waitUntilReady());
    start();
    ASSERT_TRUE(panel.waitForItemOf(corvane().program().pid()));
    const NotifierFacts item(m_desktop, corvane().program().pid());
    ASSERT_TRUE(item.choose(u"Show Shelf"_s));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
    ASSERT_TRUE(item.choose(u"Show Shelf"_s) || item.choose(u"Hide Shelf"_s));
    EXPECT_TRUE(corvane().waitUntilHidden());
}

} // namespace
} // namespace corvane::e2e
