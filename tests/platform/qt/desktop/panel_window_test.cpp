#include "platform/base/geometry.h"
#include "platform/managed_window.h"
#include "platform/panel_fixture.h"
#include "platform/two_monitors.h"
#include "platform/x11/base/x11_reply.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWheelEvent>

#include <unistd.h>

#include <csignal>

namespace corvane::test {

namespace {

class PanelWindowTest : public PanelFixture {
protected:
    bool keyboardComesTo(xcb_window_t window)
    {
        return eventually([&] { return display.server.focusedWindow() == window; });
    }
};

/// A selection owner that does nothing else: what makes a compositor known.
class CompositorName {
public:
    explicit CompositorName(Display &display)
        : m_server(display.server)
        , m_window(xcb_generate_id(m_server.connection()))
    {
        xcb_create_window(m_server.connection(), XCB_COPY_FROM_PARENT, m_window, m_server.root(), 0,
                          0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0,
                          nullptr);
        xcb_set_selection_owner(m_server.connection(), m_window, m_server.atom("_NET_WM_CM_S0"),
                                XCB_CURRENT_TIME);
        xcb_flush(m_server.connection());
    }
    ~CompositorName()
    {
        xcb_destroy_window(m_server.connection(), m_window);
        xcb_flush(m_server.connection());
    }

private:
    e2e::XServer &m_server;
    xcb_window_t m_window;
};

/// As long as this lives the window manager does nothing of what it is asked.
class BusyWindowManager {
public:
    BusyWindowManager() { signal(SIGSTOP); }
    ~BusyWindowManager() { signal(SIGCONT); }
    bool isFound() const { return m_pid > 0; }

private:
    /// It was started by the program that has started this one.
    static pid_t find()
    {
        const QStringList processes = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
        for (const QString &process : processes) {
            QFile stat(QStringLiteral("/proc/%1/stat").arg(process));
            if (process.toInt() > 0 && stat.open(QIODevice::ReadOnly)) {
                const QList<QByteArray> words = stat.readAll().split(' ');
                if (words.value(1) == "(openbox)" && words.value(3).toInt() == getppid())
                    return process.toInt();
            }
        }
        return 0;
    }
    void signal(int number) const
    {
        if (isFound())
            kill(m_pid, number);
    }

    pid_t m_pid = find();
};

/// What a window manager hears at the root window of somebody's wish to activate a window.
class RootEars {
public:
    RootEars()
    {
        const std::uint32_t mask
            = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE;
        xcb_change_window_attributes(m_server.connection(), m_server.root(), XCB_CW_EVENT_MASK,
                                     &mask);
        m_server.focusedWindow();
    }
    xcb_window_t askedFor()
    {
        while (
            const X11Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_server.connection())}) {
            const int type = event->response_type & 0x7f;
            const auto &message = reinterpret_cast<const xcb_client_message_event_t &>(*event);
            if (type == XCB_PROPERTY_NOTIFY && m_askedFor == e2e::noWindow)
                m_timeBefore = reinterpret_cast<const xcb_property_notify_event_t &>(*event).time;
            if (type == XCB_CLIENT_MESSAGE && message.type == m_server.atom("_NET_ACTIVE_WINDOW")) {
                m_askedFor = message.window;
                m_time = message.data.data32[1];
            }
        }
        return m_askedFor;
    }
    xcb_timestamp_t timeOfRequest() const { return m_time; }
    /// Of the last event that carried one and came before it.
    xcb_timestamp_t timeBeforeRequest() const { return m_timeBefore; }

private:
    e2e::XServer m_server{qgetenv("DISPLAY")};
    xcb_window_t m_askedFor = e2e::noWindow;
    xcb_timestamp_t m_time = 0;
    xcb_timestamp_t m_timeBefore = 0;
};

} // namespace

TEST_F(PanelWindowTest, isMadeHidden)
{
    EXPECT_FALSE(panel.isVisible());
    EXPECT_NE(id(), e2e::noWindow);
    EXPECT_FALSE(facts().isViewable);
}

TEST_F(PanelWindowTest, standsExactlyWhereItWasPut)
{
    show();
    EXPECT_EQ(facts().frame, QRect(600, 400, 300, 100));
    EXPECT_TRUE(facts().isOverrideRedirect);
    panel.place(placementFor({100.4, 881.6, 320, 100}));
    EXPECT_TRUE(eventually([&] { return facts().frame == QRect(100, 0, 320, 100); }));
    EXPECT_EQ(panel.frame(), QRectF(100.4, 881.6, 320, 100));
}

TEST_F(PanelWindowTest, hangsInTheMiddleOfItsScreenOnWholePoints)
{
    struct Case {
        QSizeF size;
        double fromTop;
        QRect frame;
    };
    show();
    for (const auto &[size, fromTop, frame] :
         {Case{{320, 100}, 0, {596, 0, 320, 100}}, Case{{321, 100}, 66, {596, 66, 321, 100}},
          Case{{320.4, 99.5}, 66.4, {596, 66, 320, 100}},
          Case{{320.6, 99.4}, 66.5, {596, 67, 321, 99}},
          Case{{1513, 100}, 1, {-1, 1, 1513, 100}}}) {
        panel.place({screens.mainScreen(), fromTop, size});
        EXPECT_TRUE(eventually([&] { return facts().frame == frame; })) << size.width();
        EXPECT_EQ(panel.frame(),
                  QRectF(756 - size.width() / 2, 982 - fromTop - size.height(), size.width(),
                         size.height()));
    }
}

TEST_F(PanelWindowTest, hangsFromTheScreenThatItIsGiven)
{
    show();
    const auto isSplit = [&](bool isWanted) {
        return eventually(
            [&] { return screens.screens().front()->frame.width() == (isWanted ? 700 : 1512); });
    };
    {
        const TwoMonitors monitors(182);
        ASSERT_TRUE(isSplit(true));
        ASSERT_TRUE(eventually([&] { return screens.screens().size() == 2; }));
        panel.place({screens.screens().back(), 66, {321, 100}});
        EXPECT_TRUE(eventually([&] { return facts().frame == QRect(946, 248, 321, 100); }));
        EXPECT_EQ(panel.frame(), QRectF(945.5, 982 - 248 - 100, 321, 100));
        EXPECT_EQ(panel.screen(), QGuiApplication::screens().back());
        // Without a screen on the primary one.
        panel.place({nullptr, 10, {301, 100}});
        EXPECT_TRUE(eventually([&] { return facts().frame == QRect(200, 10, 301, 100); }));
        EXPECT_EQ(panel.screen(), QGuiApplication::primaryScreen());
    }
    EXPECT_TRUE(isSplit(false));
}

TEST_F(PanelWindowTest, tellsWhichScreenItIsOn)
{
    EXPECT_EQ(panel.screen(), QGuiApplication::primaryScreen());
    panel.place(placementFor({5000, 482, 300, 100}));
    EXPECT_EQ(panel.screen(), nullptr);
    EXPECT_TRUE(eventually([&] { return facts().frame == QRect(5000, 400, 300, 100); }));
}

TEST_F(PanelWindowTest, hidesAndShowsAgain)
{
    show();
    panel.orderOut();
    EXPECT_FALSE(panel.isVisible());
    EXPECT_TRUE(eventually([&] { return !facts().isViewable; }));
    content.paints = 0;
    show();
}

TEST_F(PanelWindowTest, comesUpAboveWindowsThatAreYounger)
{
    const ManagedWindow other({550, 350, 400, 200});
    show();
    const auto windows = display.server.windows();
    const auto place = [&](xcb_window_t window) {
        return std::ranges::find(windows, window, &e2e::WindowFacts::id) - windows.begin();
    };
    EXPECT_GT(place(id()), place(other.id()));
}

TEST_F(PanelWindowTest, takesNoFocusWhenItIsShown)
{
    const ManagedWindow other({100, 100, 300, 200});
    show();
    settle();
    EXPECT_EQ(display.server.activeWindow(), other.id());
    EXPECT_EQ(display.server.focusedWindow(), other.id());
}

TEST_F(PanelWindowTest, paintsInPointsFromTheBottomLeft)
{
    show();
    EXPECT_TRUE(eventually([&] { return colorAt(at(10, 90)) == QColor(Qt::red); }));
    EXPECT_NE(colorAt(at(10, 10)), QColor(Qt::red));
}

TEST_F(PanelWindowTest, repaintsOnlyWhatWasAskedFor)
{
    show();
    settle();
    content.paints = 0;
    content.color = Qt::green;
    panel.setNeedsDisplay({0, 0, 20, 20});
    panel.setNeedsDisplay({20, 0, 20, 20});
    EXPECT_TRUE(eventually([&] { return colorAt(at(30, 90)) == QColor(Qt::green); }));
    EXPECT_EQ(colorAt(at(50, 90)), QColor(Qt::red));
    EXPECT_EQ(content.paints, 1);
    EXPECT_EQ(content.clip, QRectF(0, 0, 40, 20));
}

TEST_F(PanelWindowTest, anExposedPanelIsNotPaintedAgain)
{
    show();
    settle();
    content.paints = 0;
    {
        const ManagedWindow other({500, 300, 500, 300});
        settle();
    }
    settle();
    EXPECT_EQ(content.paints, 0);
    EXPECT_EQ(colorAt(at(10, 90)), QColor(Qt::red));
}

TEST_F(PanelWindowTest, onlyTheBodyTakesClicks)
{
    ManagedWindow below({500, 300, 500, 300});
    setBody();
    show();
    EXPECT_EQ(display.server.inputShape(id()), QList<QRect>{QRect(50, 0, 200, 60)});
    display.hands.click(at(150, 30));
    EXPECT_TRUE(eventually([&] { return content.count("down") == 1; }));
    EXPECT_TRUE(content.log.contains(QStringLiteral("down 150.5 69.5")));
    const int clicksBefore = below.clicks();
    display.hands.click(at(20, 80));
    EXPECT_TRUE(eventually([&] { return below.clicks() == clicksBefore + 1; }));
    EXPECT_EQ(content.count("down"), 1);
}

TEST_F(PanelWindowTest, takesNoClickWhileItIgnoresThem)
{
    setBody();
    panel.setIgnoresMouseEvents(true);
    show();
    EXPECT_TRUE(display.server.inputShape(id()).isEmpty());
    panel.setIgnoresMouseEvents(false);
    EXPECT_TRUE(eventually(
        [&] { return display.server.inputShape(id()) == QList<QRect>{QRect(50, 0, 200, 60)}; }));
}

TEST_F(PanelWindowTest, theBodyHangsFromTheBottomLeftAlsoWhenThePanelGrows)
{
    setBody();
    show();
    panel.place(placementFor({600, 432, 300, 150}));
    EXPECT_TRUE(eventually(
        [&] { return display.server.inputShape(id()) == QList<QRect>{QRect(50, 50, 200, 60)}; }));
}

TEST_F(PanelWindowTest, isCutToItsOutlineOnlyWithoutACompositor)
{
    setBody();
    show();
    const QList<QRect> whole{QRect(0, 0, 300, 100)};
    const QList<QRect> cut{QRect(50, 0, 200, 60)};
    EXPECT_TRUE(eventually([&] { return display.server.boundingShape(id()) == cut; }));
    {
        const CompositorName compositor(display);
        EXPECT_TRUE(eventually([&] { return display.server.boundingShape(id()) == whole; }));
        EXPECT_TRUE(panels.compositing.isComposited());
        EXPECT_TRUE(X11Compositing(connection).isComposited());
    }
    EXPECT_TRUE(eventually([&] { return display.server.boundingShape(id()) == cut; }));
    EXPECT_FALSE(panels.compositing.isComposited());
}

TEST_F(PanelWindowTest, reportsThePointer)
{
    setBody();
    show();
    display.hands.glideTo(at(100, 20));
    EXPECT_TRUE(eventually([&] { return content.count("entered") == 1; }));
    display.hands.glideTo(at(120, 30));
    EXPECT_TRUE(eventually([&] { return content.lastMove == QPointF(120.5, 69.5); }));
    display.hands.press(3);
    display.hands.release(3);
    display.hands.press(1);
    display.hands.glideTo(at(125, 35));
    display.hands.release(1);
    EXPECT_TRUE(eventually([&] { return content.count("up") == 1; }));
    EXPECT_EQ(content.count("down"), 1);
    EXPECT_TRUE(content.log.contains(QStringLiteral("dragged 125.5 64.5")));
    display.hands.glideTo(at(100, 300));
    EXPECT_TRUE(eventually([&] { return content.count("exited") == 1; }));
}

TEST_F(PanelWindowTest, thePixelsAlongItsEdgesLieInsideIt)
{
    show();
    for (const QPoint corner : {QPoint(0, 0), QPoint(299, 0), QPoint(0, 99), QPoint(299, 99)}) {
        display.hands.glideTo(at(150, 50));
        display.hands.moveTo(at(corner.x(), corner.y()));
        const QPointF middle(corner.x() + 0.5, 99.5 - corner.y());
        EXPECT_TRUE(eventually([&] { return content.lastMove == middle; }));
        EXPECT_TRUE(contains({{0, 0}, panel.frame().size()}, content.lastMove));
    }
}

TEST_F(PanelWindowTest, aLargerContentIsPaintedAndClickedInItsOwnPoints)
{
    show();
    const PanelPlacement usual = placementFor({600, 482, 300, 100});
    PanelPlacement larger = usual;
    larger.scale = 2;
    panel.place(larger);
    EXPECT_EQ(panel.contentSize(), QSizeF(150, 50));
    EXPECT_TRUE(eventually([&] { return content.paintedSize == QSizeF(150, 50); }));
    EXPECT_EQ(content.paintedScale, 2);
    EXPECT_EQ(colorAt(at(298, 51)), content.color) << "the lower half, up to the panel's edge";
    EXPECT_NE(colorAt(at(298, 48)), content.color);
    EXPECT_EQ(panel.frame(), QRectF(600, 482, 300, 100));

    QPainterPath outline;
    outline.addRect(10, 20, 100, 30);
    panel.setBody({10, 20, 100, 30}, outline);
    EXPECT_EQ(display.server.inputShape(id()), QList<QRect>{QRect(20, 0, 200, 60)});
    display.hands.glideTo(at(121, 30));
    EXPECT_TRUE(eventually([&] { return content.lastMove == QPointF(60.75, 34.75); }));
    panel.place(usual);
    EXPECT_TRUE(eventually([&] { return content.paintedSize == QSizeF(300, 100); }));
}

TEST_F(PanelWindowTest, aDoubleClickIsTwoClicks)
{
    show();
    display.hands.doubleClick(at(150, 30));
    EXPECT_TRUE(eventually([&] { return content.count("up") == 2; }));
    EXPECT_EQ(content.count("down"), 2);
}

TEST_F(PanelWindowTest, wheelsScrollSideways)
{
    show();
    display.hands.glideTo(at(150, 30));
    display.hands.turn(e2e::Hands::Wheel::Left);
    EXPECT_TRUE(eventually([&] { return content.scrolls.size() == 1; }));
    EXPECT_EQ(content.scrolls[0].deltaX, 4);
    display.hands.turn(e2e::Hands::Wheel::Down);
    display.hands.keyDown(e2e::keys::shift);
    display.hands.turn(e2e::Hands::Wheel::Down);
    display.hands.keyUp(e2e::keys::shift);
    EXPECT_TRUE(eventually([&] { return content.scrolls.size() == 2; }));
    EXPECT_EQ(content.scrolls[1].deltaX, -4);
    EXPECT_EQ(content.count("down"), 0);
}

TEST_F(PanelWindowTest, takesTheKeyboardOnAClickAndGivesItBack)
{
    const ManagedWindow other({100, 100, 300, 200});
    content.onMouseDown = [this] { panel.makeKey(); };
    show();
    display.hands.click(at(150, 30));
    ASSERT_TRUE(keyboardComesTo(id()));
    display.hands.key('c', {e2e::keys::control});
    ASSERT_TRUE(eventually(
        [&] { return !content.keys.empty() && content.keys.back().key == TypedKey::C; }));
    EXPECT_TRUE(content.keys.back().modifiers.testFlag(Modifier::Command));
    display.hands.key(e2e::keys::escape);
    EXPECT_TRUE(eventually([&] { return content.keys.back().key == TypedKey::Escape; }));
    panel.orderOut();
    EXPECT_TRUE(keyboardComesTo(other.id()));
}

TEST_F(PanelWindowTest, leavesTheKeyboardWithSomebodyWhoTookItMeanwhile)
{
    const ManagedWindow first({100, 100, 300, 200});
    content.onMouseDown = [this] { panel.makeKey(); };
    show();
    display.hands.click(at(150, 30));
    ASSERT_TRUE(keyboardComesTo(id()));
    const ManagedWindow second({500, 600, 300, 200});
    ASSERT_TRUE(keyboardComesTo(second.id()));
    panel.orderOut();
    settle();
    EXPECT_EQ(display.server.focusedWindow(), second.id());
}

TEST_F(PanelWindowTest, aPanelThatTookItFromAnotherGivesItBackToTheProgram)
{
    const ManagedWindow other({100, 100, 300, 200});
    QtPanelWindow second(panels.desktop(), queue);
    second.place(placementFor({600, 200, 300, 100}));
    content.onMouseDown = [&] {
        panel.makeKey();
        second.orderFrontRegardless();
        second.makeKey();
    };
    show();
    display.hands.click(at(150, 30));
    const auto secondId = static_cast<xcb_window_t>(second.window().winId());
    ASSERT_TRUE(keyboardComesTo(secondId));
    // The first one, which has nothing to give back, forgets nothing.
    panel.orderOut();
    second.orderOut();
    EXPECT_TRUE(keyboardComesTo(other.id()));
}

TEST_F(PanelWindowTest, takesTheKeyboardOnDemandWithoutAnEventOfItsOwn)
{
    show();
    const ManagedWindow other({100, 100, 300, 200});
    display.hands.click({150, 150});
    settle();
    panel.makeKey();
    EXPECT_TRUE(keyboardComesTo(id()));
}

TEST_F(PanelWindowTest, takesTheKeyboardAlsoFromWhoTookItAfterTheLastEventOfItsOwn)
{
    // The latest time that the toolkit knows of.
    show();
    display.hands.click(at(150, 30));
    ASSERT_TRUE(eventually([&] { return content.count("up") == 1; }));
    const ManagedWindow other({100, 100, 300, 200});
    xcb_set_input_focus(display.server.connection(), XCB_INPUT_FOCUS_PARENT, other.id(),
                        XCB_CURRENT_TIME);
    ASSERT_EQ(display.server.focusedWindow(), other.id());
    panel.makeKey();
    EXPECT_TRUE(keyboardComesTo(id()));
}

TEST_F(PanelWindowTest, takesTheKeyboardInTheMomentInWhichItIsShown)
{
    const ManagedWindow other({100, 100, 300, 200});
    panel.orderFrontRegardless();
    panel.makeKey();
    EXPECT_TRUE(keyboardComesTo(id()));
}

TEST_F(PanelWindowTest, tellsTheWindowManagerTheTimeWhenItGivesTheKeyboardBack)
{
    const ManagedWindow other({100, 100, 300, 200});
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    const xcb_timestamp_t before = connection.serverTime();
    RootEars ears;
    panel.orderOut();
    ASSERT_TRUE(eventually([&] { return ears.askedFor() == other.id(); }));
    EXPECT_GE(ears.timeOfRequest(), before);
    EXPECT_GE(ears.timeBeforeRequest(), ears.timeOfRequest())
        << "those that go by the latest event have seen one that is as late";
}

TEST_F(PanelWindowTest, takesTheKeyboardFromNobodyWhenTheUserWentOn)
{
    const ManagedWindow before({100, 100, 300, 200});
    const ManagedWindow clicked({500, 600, 300, 200});
    display.hands.click({150, 150});
    ASSERT_TRUE(keyboardComesTo(before.id()));
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    display.hands.click({650, 700});
    panel.userWentOn();
    panel.orderOut();
    EXPECT_TRUE(keyboardComesTo(clicked.id()));
    settle();
    EXPECT_EQ(display.server.focusedWindow(), clicked.id());
}

TEST_F(PanelWindowTest, resigningGivesTheKeyboardBackAndLeavesThePanelOnScreen)
{
    ManagedWindow other({100, 100, 300, 200});
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    panel.resignKey();
    EXPECT_TRUE(keyboardComesTo(other.id()));
    EXPECT_TRUE(facts().isViewable);
    // It was asked to activate that window, and takes its time.
    other.resize({100, 100, 320, 220});
    panel.makeKey();
    EXPECT_TRUE(keyboardComesTo(id()));
}

TEST_F(PanelWindowTest, hasTheKeyboardAgainHoweverLateTheWindowManagerGivesItBack)
{
    ManagedWindow other({100, 100, 300, 200});
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    for (int i = 0; i < 2; ++i) {
        const BusyWindowManager busy;
        ASSERT_TRUE(busy.isFound());
        panel.orderOut();
        ASSERT_EQ(display.server.focusedWindow(), other.id());
        panel.orderFrontRegardless();
        panel.makeKey();
        ASSERT_TRUE(keyboardComesTo(id()));
    }
    // It has done all that it was asked by then.
    other.resize({100, 100, 320, 220});
    EXPECT_TRUE(keyboardComesTo(id()));
    settle();
    EXPECT_EQ(display.server.focusedWindow(), id());
    panel.orderOut();
    EXPECT_TRUE(eventually([&] { return display.server.activeWindow() == other.id(); }));
    settle();
    EXPECT_EQ(display.server.focusedWindow(), other.id());
}

TEST_F(PanelWindowTest, resigningTakesTheKeyboardFromNoOther)
{
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    const ManagedWindow later({100, 100, 300, 200});
    ASSERT_TRUE(keyboardComesTo(later.id()));
    panel.resignKey();
    settle();
    EXPECT_EQ(display.server.focusedWindow(), later.id());
}

TEST_F(PanelWindowTest, resigningKeepsNoKeyboardForAWindowThatIsGone)
{
    show();
    {
        const ManagedWindow other({100, 100, 300, 200});
        panel.makeKey();
        ASSERT_TRUE(keyboardComesTo(id()));
    }
    panel.resignKey();
    EXPECT_TRUE(eventually([&] { return display.server.focusedWindow() != id(); }));
}

TEST_F(PanelWindowTest, amongPanelsItTakesTheKeyboardFromPanelsAlone)
{
    const ManagedWindow other({100, 100, 300, 200});
    QtPanelWindow second(panels.desktop(), queue);
    second.place(placementFor({600, 200, 300, 100}));
    const auto secondId = static_cast<xcb_window_t>(second.window().winId());
    show();
    second.orderFrontRegardless();
    second.makeKeyAmongPanels();
    settle();
    EXPECT_EQ(display.server.focusedWindow(), other.id());
    panel.makeKey();
    second.makeKeyAmongPanels();
    EXPECT_TRUE(keyboardComesTo(secondId));
    panel.makeKey();
    second.makeKey();
    panel.makeKeyAmongPanels();
    settle();
    EXPECT_EQ(display.server.focusedWindow(), id()) << "the latest wish is the one that counts";
    second.orderOut();
    panel.orderOut();
    EXPECT_TRUE(keyboardComesTo(other.id()));
}

TEST_F(PanelWindowTest, tellsRepeatsFromPressesAlsoWhereTheToolkitDoesNot)
{
    const auto send = [this](QEvent::Type type, quint64 time, quint32 scanCode, bool isRepeat) {
        QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier, scanCode, 0, 0, {}, isRepeat);
        event.setTimestamp(time);
        QCoreApplication::sendEvent(&panel.window(), &event);
    };
    send(QEvent::KeyPress, 1000, 9, false);
    send(QEvent::KeyPress, 1500, 9, true);
    send(QEvent::KeyRelease, 1530, 9, false);
    send(QEvent::KeyPress, 1530, 9, false);
    send(QEvent::KeyRelease, 1600, 9, false);
    send(QEvent::KeyPress, 1600, 10, false);
    send(QEvent::KeyPress, 1700, 9, false);
    std::vector<bool> repeats;
    for (const KeyEvent &key : content.keys)
        repeats.push_back(key.isRepeat);
    EXPECT_EQ(repeats, (std::vector{false, true, true, false, false}));
}

TEST_F(PanelWindowTest, theRepeatsOfAKeyThatHidItReachNobodyElse)
{
    const ManagedWindow other({100, 100, 300, 200});
    e2e::KeyLog log(qgetenv("DISPLAY"), other.id());
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    display.hands.keyDown(e2e::keys::escape);
    ASSERT_TRUE(eventually([&] { return !content.keys.empty(); }));
    panel.orderOut();
    ASSERT_TRUE(keyboardComesTo(other.id()));
    // Many repeats long.
    EXPECT_FALSE(eventually([&] { return log.presses() > 0; }, std::chrono::milliseconds{1200}));
    display.hands.keyUp(e2e::keys::escape);
    settle();
    display.hands.key(e2e::keys::escape);
    display.hands.key('x');
    EXPECT_TRUE(eventually([&] { return log.presses() >= 2; })) << "pressed anew it is heard";
    EXPECT_EQ(log.presses(), 2);
}

TEST_F(PanelWindowTest, aKeyThatIsUpAgainWhenThePanelHidesIsNotKeptFromAnybody)
{
    const ManagedWindow other({100, 100, 300, 200});
    e2e::KeyLog log(qgetenv("DISPLAY"), other.id());
    show();
    panel.makeKey();
    ASSERT_TRUE(keyboardComesTo(id()));
    display.hands.keyDown(e2e::keys::escape);
    ASSERT_TRUE(eventually([&] { return !content.keys.empty(); }));
    // Released while nobody looks.
    display.hands.keyUp(e2e::keys::escape);
    panel.orderOut();
    ASSERT_TRUE(keyboardComesTo(other.id()));
    display.hands.key(e2e::keys::escape);
    EXPECT_TRUE(eventually([&] { return log.presses() == 1; }));
}

TEST_F(PanelWindowTest, fineWheelsComeAsWholeNotches)
{
    const auto turn = [this](int angle) {
        QWheelEvent event({150, 30}, {}, {}, {angle, 0}, Qt::NoButton, {}, Qt::NoScrollPhase,
                          false);
        QCoreApplication::sendEvent(&panel.window(), &event);
    };
    for (int i = 0; i < 8; ++i)
        turn(-15);
    ASSERT_EQ(content.scrolls.size(), 1U);
    EXPECT_EQ(content.scrolls[0].deltaX, -4);
}

TEST_F(PanelWindowTest, aHiddenPanelNeverTakesTheKeyboard)
{
    const ManagedWindow other({100, 100, 300, 200});
    panel.makeKey();
    settle();
    EXPECT_EQ(display.server.focusedWindow(), other.id());
}

TEST_F(PanelWindowTest, asksForNoShadow)
{
    const auto shadow = display.server.property(id(), "_COMPTON_SHADOW");
    EXPECT_EQ(shadow, QByteArray(4, '\0'));
}

TEST_F(PanelWindowTest, contentMayGoWhileThePanelIsShown)
{
    show();
    panel.setContent(nullptr);
    display.hands.click(at(150, 30));
    panel.setNeedsDisplay({0, 0, 300, 100});
    settle();
    EXPECT_EQ(content.count("down"), 0);
}

/// Writes down which key it is to keep from the program behind.
class SwallowingFocus : public X11KeyboardFocus {
public:
    using X11KeyboardFocus::X11KeyboardFocus;
    void swallowRepeats(NativeKey key, std::uint32_t) override { swallowed.push_back(key); }

    std::vector<NativeKey> swallowed;
};

class HeldKey : public PanelFixture {
protected:
    void press(QtPanelWindow &window)
    {
        constexpr quint32 scanCode = 38;
        QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, scanCode, 0, 0);
        QCoreApplication::sendEvent(&window.window(), &press);
    }

    SwallowingFocus swallowing{connection};
    KeyboardLoan loan{swallowing, queue};
    QtPanelWindow panelWithKeys{{panels.surface, loan, panels.compositing, panels.pointingDevices},
                                queue};
};

TEST_F(HeldKey, ofAPanelThatHasTheKeyboardIsKeptFromTheProgramBehind)
{
    panelWithKeys.setContent(&content);
    panelWithKeys.orderFrontRegardless();
    press(panelWithKeys);
    panelWithKeys.orderOut();
    EXPECT_EQ(swallowing.swallowed, std::vector{NativeKey{38}});
    panelWithKeys.setContent(nullptr);
}

TEST_F(HeldKey, isForgottenWhereTheKeyboardHasGoneToSomebodyElse)
{
    panelWithKeys.setContent(&content);
    panelWithKeys.orderFrontRegardless();
    press(panelWithKeys);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&panelWithKeys.window(), &out);
    panelWithKeys.orderOut();
    EXPECT_TRUE(swallowing.swallowed.empty());
    panelWithKeys.setContent(nullptr);
}

} // namespace corvane::test
