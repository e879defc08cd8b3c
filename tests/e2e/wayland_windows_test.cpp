// The program's windows, its icon and what it shows of pages and pictures, in Wayland sessions.

#include "e2e/desktop/screen_reader.h"
#include "e2e/wayland_session.h"
#include "platform/qt/web/http_server.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <algorithm>
#include <csignal>

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
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    ASSERT_TRUE(item->choose(u"Show Shelf"_s));
    EXPECT_TRUE(corvane().waitForHeight(CorvaneProgram::empty.height()));
    ASSERT_TRUE(item->choose(u"Show Shelf"_s) || item->choose(u"Hide Shelf"_s));
    EXPECT_TRUE(corvane().waitUntilHidden());
}

/// Where the program's windows are the compositor's own.
class LayerWindows : public WaylandWindows { };
INSTANTIATE_TEST_SUITE_P(Layer, LayerWindows,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin)),
                         nameOf);

// Nobody tells where the icon is, so that the menu comes in the middle of the screen.
TEST_P(LayerWindows, aClickOnThePanelsIconOpensAMenuForKeys)
{
    NotifierPanel panel(m_desktop);
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    const QRect middle(740, 470, 60, 60);
    const QImage bare = m_desktop.pictureAtRest(middle);
    const auto isOpen = [&] { return server().picture(middle) != bare; };
    item->click();
    ASSERT_TRUE(eventually(isOpen));
    EXPECT_TRUE(eventually([&] {
        hands().key(keys::escape);
        return !isOpen();
    }));
    item->click();
    ASSERT_TRUE(eventually(isOpen));
    m_desktop.pictureAtRest(middle);
    hands().key(keys::down);
    hands().key(keys::enter);
    EXPECT_TRUE(corvane().waitUntilShown());
    EXPECT_TRUE(eventually([&] { return !isOpen(); }));
}

TEST_P(LayerWindows, aClickElsewhereClosesTheMenuOfThePanelsIcon)
{
    NotifierPanel panel(m_desktop);
    GtkPeer other(m_desktop, {}, leftPlace());
    ASSERT_EQ(other.problem(), QString());
    const auto item = startInPanel(panel);
    ASSERT_TRUE(item);
    const QRect middle(740, 470, 60, 60);
    const QImage bare = m_desktop.pictureAtRest(middle);
    item->click();
    ASSERT_TRUE(eventually([&] { return server().picture(middle) != bare; }));
    m_desktop.pictureAtRest(middle);
    hands().click(other.target());
    EXPECT_TRUE(eventually([&] { return server().picture(middle) == bare; }));
}

/// What the desktop gives with a click, so that the window that comes of it may come to the front:
/// whether it does is the compositor's decision, by rules of its own.
class ActivationTokens : public LayerWindows {
protected:
    /// In an environment in which it says what it asks of the compositor.
    void startTelling(CorvaneProgram::Start how)
    {
        how.environment = m_desktop.environment();
        how.environment.insert(u"WAYLAND_DEBUG"_s, u"1"_s);
        if (!m_tokenOfStart.isEmpty())
            how.environment.insert(u"XDG_ACTIVATION_TOKEN"_s, m_tokenOfStart);
        start(how);
    }
    bool chooseAction(const QString &action, const QString &token)
    {
        return outputOf(u"gdbus"_s,
                        {u"call"_s, u"--session"_s, u"--dest"_s, u"example.corvane.Corvane"_s,
                         u"--object-path"_s, u"/example/corvane/Corvane"_s, u"--method"_s,
                         u"org.freedesktop.Application.ActivateAction"_s, action, u"[]"_s,
                         u"{'activation-token': <'%1'>}"_s.arg(token)},
                        m_desktop.environment())
            .has_value();
    }
    bool handsOn(const QByteArray &token)
    {
        const QByteArray request = ".activate(\"" + token + '"';
        return eventually([&] { return corvane().program().output().contains(request); });
    }

    QString m_tokenOfStart;
};
INSTANTIATE_TEST_SUITE_P(Layer, ActivationTokens,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin)),
                         nameOf);

class KWinPermissions : public ActivationTokens { };
INSTANTIATE_TEST_SUITE_P(, KWinPermissions, testing::Values(sessionOf(WindowManager::KWin)),
                         nameOf);

TEST_P(ActivationTokens, anActionsIsHandedOnForTheWindowThatItShows)
{
    startTelling({});
    ASSERT_TRUE(chooseAction(u"preferences"_s, u"of-the-first-click"_s));
    EXPECT_TRUE(handsOn("of-the-first-click"));
    EXPECT_TRUE(waitUntilShown(preferencesSize));
    // A window that is there already needs one all the more.
    ASSERT_TRUE(chooseAction(u"preferences"_s, u"of-the-second-click"_s));
    EXPECT_TRUE(handsOn("of-the-second-click"));
}

TEST_P(ActivationTokens, soItIsWhereTheSessionBusHasStartedTheProgramForIt)
{
    CorvaneProgram::Start how{};
    how.arguments = QStringList{u"--started-by-bus"_s};
    startTelling(how);
    EXPECT_FALSE(corvane().isShown());
    ASSERT_TRUE(chooseAction(u"preferences"_s, u"of-the-click"_s));
    EXPECT_TRUE(handsOn("of-the-click"));
    EXPECT_TRUE(waitUntilShown(preferencesSize));
}

TEST_P(ActivationTokens, theOneOfTheStartIsForTheGuide)
{
    m_tokenOfStart = u"of-the-start"_s;
    CorvaneProgram::Start how{};
    how.hasSeenWelcome = false;
    startTelling(how);
    EXPECT_TRUE(handsOn("of-the-start"));
    EXPECT_TRUE(waitUntilShown(welcomeSize));
}

/// Started as sessions do at login.
class LoginItem : public ActivationTokens {
protected:
    ~LoginItem() override
    {
        // The shell that started it does not know of it.
        Program(CorvaneProgram::path(), {u"--quit"_s}, m_desktop.environment()).waitForEnd();
        QFile::remove(entry());
    }
    QString entry() const
    {
        return m_desktop.environment().value(u"XDG_CONFIG_HOME"_s)
            + u"/autostart/corvane.desktop"_s;
    }
    /// By its switch in the preferences.
    void becomeOne()
    {
        ScreenReader reader(m_desktop);
        ASSERT_TRUE(reader.isReady());
        CorvaneProgram::Start how{};
        how.environment = m_desktop.environment();
        ScreenReader::addTo(how.environment);
        start(how);
        ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
        std::optional<ScreenReader::Element> found;
        ASSERT_TRUE(eventually([&] {
            found = reader.control(corvane().program().pid(), u"Launch at login"_s);
            return found.has_value();
        }));
        ASSERT_TRUE(reader.perform(*found, u"Toggle"_s));
        ASSERT_TRUE(eventually([this] { return QFile::exists(entry()); }));
        corvane().program().signal(SIGTERM);
        ASSERT_EQ(corvane().program().waitForEnd(), 0);
        m_corvane.reset();
    }
    void logIn()
    {
        CorvaneProgram::Start how{};
        how.program = u"sh"_s;
        how.arguments = QStringList{u"-c"_s, u"gio launch \"$0\"; exec sleep infinity"_s, entry()};
        startTelling(how);
    }
};
INSTANTIATE_TEST_SUITE_P(Layer, LoginItem,
                         testing::Values(sessionOf(WindowManager::Sway),
                                         sessionOf(WindowManager::KWin)),
                         nameOf);

TEST_P(LoginItem, waitsForDragsAndIsOpenedAgainWithThePermissionOfTheSecondStart)
{
    ASSERT_NO_FATAL_FAILURE(becomeOne());
    logIn();
    EXPECT_FALSE(corvane().isShown());
    ASSERT_NO_FATAL_FAILURE(expectThatItOpensForADrag());
    EXPECT_TRUE(corvane().waitUntilHidden());
    EXPECT_EQ(corvane().startAgain(), 0);
    EXPECT_TRUE(corvane().waitUntilShown());
    auto environment = m_desktop.environment();
    environment.insert(u"XDG_ACTIVATION_TOKEN"_s, u"of-the-second-start"_s);
    EXPECT_EQ(Program(CorvaneProgram::path(), {u"--preferences"_s}, environment).waitForEnd(), 0);
    EXPECT_TRUE(handsOn("of-the-second-start"));
}

// KWin gives permission to programs whose window is in use; sway marks the window as urgent alone,
// unless the user has it do more.
TEST_P(KWinPermissions, aClickInAnotherProgramBringsAWindowBehindItToTheFront)
{
    const auto givesPermission
        = u"from gi.repository import Gio\n"
          "def permit(widget, event):\n"
          "    flags = Gio.AppInfoCreateFlags.SUPPORTS_STARTUP_NOTIFICATION\n"
          "    app = Gio.AppInfo.create_from_commandline('true', 'shelf', flags)\n"
          "    context = Gdk.Display.get_default().get_app_launch_context()\n"
          "    tell('permission', context.get_startup_notify_id(app, []))\n"
          "source.connect('button-press-event', permit)"_s;
    GtkPeer asking(m_desktop, {.text = u"text"_s, .habits = givesPermission}, leftPlace());
    ASSERT_EQ(asking.problem(), QString());
    start();
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(waitUntilShown(preferencesSize));
    hands().click(asking.target());
    ASSERT_TRUE(hearsKeys(asking, 'k'));
    hands().click(asking.source());
    ASSERT_TRUE(asking.hasSaid("permission"));
    const QByteArray permission = asking.said("permission");
    ASSERT_TRUE(chooseAction(u"preferences"_s, QString::fromUtf8(permission)));
    EXPECT_TRUE(isClosedByTyping(preferencesSize, 'w', {keys::control}))
        << "keys go to the other program still";
}

} // namespace
} // namespace corvane::e2e
