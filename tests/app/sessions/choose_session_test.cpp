#include "app/sessions/choose_session.h"

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <optional>
#include <ostream>

namespace corvane::test {

namespace {

constexpr CompositorRegistry noAnswer{};
constexpr CompositorRegistry withoutPanels{.answers = true, .hasLayerShell = false};
constexpr CompositorRegistry withPanels{.answers = true, .hasLayerShell = true};

bool isOfACompositor()
{
    return true;
}
bool isOfItsOwn()
{
    return false;
}
/// Where nobody has to be asked.
bool unasked()
{
    ADD_FAILURE() << "The X server was asked.";
    return false;
}

struct Case {
    const char *what;
    SessionEnvironment environment;
    CompositorRegistry compositor;
    std::optional<SessionKind> kind;
    QByteArray platformPlugin;
    std::function<bool()> isXServerOfCompositor = isOfItsOwn;
};

const SessionEnvironment wayland{.waylandDisplay = "wayland-1", .hasWaylandPlugin = true};
const SessionEnvironment x11{.display = ":0", .hasWaylandPlugin = true};
const SessionEnvironment x11InWayland{.display = ":7", .sessionType = "wayland"};
const SessionEnvironment x11AsItSays{.display = ":0", .sessionType = "x11"};
const SessionEnvironment both{
    .display = ":0", .waylandDisplay = "wayland-1", .hasWaylandPlugin = true};
const SessionEnvironment bothWithoutPlugin{.display = ":0", .waylandDisplay = "wayland-1"};
const SessionEnvironment bothForX11{.display = ":0",
                                    .waylandDisplay = "wayland-1",
                                    .platformWish = "xcb",
                                    .hasWaylandPlugin = true};
const SessionEnvironment waylandForX11{
    .waylandDisplay = "wayland-1", .platformWish = "xcb", .hasWaylandPlugin = true};

const auto cases = std::to_array<Case>({
    {"an X11 session", x11, noAnswer, SessionKind::X11, "xcb"},
    {"a compositor that hangs panels", wayland, withPanels, SessionKind::Layer, "wayland"},
    {"the same with an X server beside it", both, withPanels, SessionKind::Layer, "wayland"},
    {"a compositor that hangs none", both, withoutPanels, SessionKind::XWayland, "xcb"},
    {"one that is there no longer", both, noAnswer, SessionKind::X11, "xcb"},
    {"its X server, but no word of it", x11, noAnswer, SessionKind::XWayland, "xcb",
     isOfACompositor},
    {"its X server, and a wrong word of it", both, noAnswer, SessionKind::XWayland, "xcb",
     isOfACompositor},
    {"an X11 session that is said to be one of Wayland", x11InWayland, noAnswer, SessionKind::X11,
     "xcb"},
    {"an X11 session within a window of a compositor", x11AsItSays, noAnswer, SessionKind::X11,
     "xcb", unasked},
    {"no plug-in for it", bothWithoutPlugin, withPanels, SessionKind::XWayland, "xcb"},
    {"somebody who asks for X11", bothForX11, withPanels, SessionKind::XWayland, "xcb"},
    {"somebody who asks for X11 where it is not", waylandForX11, withPanels, SessionKind::Layer,
     "wayland"},
    {"a compositor that hangs none, and no X server", wayland, withoutPanels, std::nullopt, ""},
    {"a wrong name, and no X server", wayland, noAnswer, std::nullopt, ""},
    {"nothing at all", {}, noAnswer, std::nullopt, ""},
});

} // namespace

TEST(ChooseSession, takesTheBestThatThereIs)
{
    for (const Case &one : cases) {
        const SessionChoice choice
            = chooseSession(one.environment, one.compositor, one.isXServerOfCompositor);
        EXPECT_TRUE(choice.kind == one.kind) << one.what;
        EXPECT_EQ(choice.platformPlugin, one.platformPlugin) << one.what;
        EXPECT_EQ(choice.refusal.isEmpty(), one.kind.has_value()) << one.what;
        EXPECT_EQ(choice.warning.count('\n'), 0) << one.what;
    }
}

TEST(ChooseSession, saysInOneLineWhyItCannotRun)
{
    const auto refusal = [](const SessionEnvironment &environment, CompositorRegistry compositor) {
        return chooseSession(environment, compositor, unasked).refusal;
    };
    EXPECT_EQ(refusal({}, noAnswer),
              "there is no display to hang the shelf on (neither WAYLAND_DISPLAY nor DISPLAY is "
              "set)");
    EXPECT_EQ(refusal(wayland, noAnswer),
              "there is no Wayland session where WAYLAND_DISPLAY says, and no X11 display either "
              "(DISPLAY is not set)");
    EXPECT_EQ(refusal(wayland, withoutPanels),
              "this Wayland session lets no program hang a shelf from its screen's edge, and there "
              "is no X11 display either (DISPLAY is not set)");
    EXPECT_EQ(refusal({.waylandDisplay = "wayland-1"}, withPanels),
              "this Wayland session takes Qt's plug-in for Wayland, which is not installed (the "
              "package qt6-wayland)");
}

TEST(ChooseSession, saysInOneLineWhatABetterSessionIsMissing)
{
    const auto warning = [](const SessionEnvironment &environment, CompositorRegistry compositor) {
        return chooseSession(environment, compositor, isOfACompositor).warning;
    };
    EXPECT_EQ(warning(x11, noAnswer),
              "WAYLAND_DISPLAY is not set in this Wayland session, so the shelf uses the session's "
              "X11 display, where some drags may not reach it");
    EXPECT_EQ(warning(both, noAnswer),
              "WAYLAND_DISPLAY names no compositor that answers, so the shelf uses this session's "
              "X11 display, where some drags may not reach it");
    EXPECT_EQ(warning(bothWithoutPlugin, withPanels),
              "this Wayland session takes Qt's plug-in for Wayland, which is not installed (the "
              "package qt6-wayland)");
    // As good as it gets, or as it was asked for.
    EXPECT_EQ(warning(both, withPanels), "");
    EXPECT_EQ(warning(both, withoutPanels), "");
    EXPECT_EQ(warning(bothForX11, withPanels), "");
    EXPECT_EQ(warning(bothForX11, noAnswer), "");
    EXPECT_EQ(warning(x11AsItSays, noAnswer), "");
    EXPECT_EQ(chooseSession(x11, noAnswer, isOfItsOwn).warning, "");
}

TEST(ChooseSession, theEnvironmentIsThatOfTheProcess)
{
    for (const auto &[variable, member] :
         {std::pair("DISPLAY", &SessionEnvironment::display),
          std::pair("WAYLAND_DISPLAY", &SessionEnvironment::waylandDisplay),
          std::pair("XDG_SESSION_TYPE", &SessionEnvironment::sessionType),
          std::pair("QT_QPA_PLATFORM", &SessionEnvironment::platformWish)}) {
        const QByteArray before = qgetenv(variable);
        qputenv(variable, ":7.1");
        EXPECT_EQ(SessionEnvironment::ofThisProcess().*member, ":7.1") << variable;
        qunsetenv(variable);
        EXPECT_EQ(SessionEnvironment::ofThisProcess().*member, "") << variable;
        if (!before.isEmpty())
            qputenv(variable, before);
    }
}

} // namespace corvane::test
