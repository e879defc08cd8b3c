// Window managers ask windows whether their program is alive. Those that say that they answer do.

#include "e2e/desktop_test.h"

#include <cstdlib>

namespace corvane::e2e {
namespace {

using namespace Qt::StringLiterals;

/// Asks windows as a window manager does, and hears what is answered on the root window.
class Pinger {
public:
    explicit Pinger(const XDesktop &desktop)
        : m_server(desktop.environment().value(u"DISPLAY"_s).toLatin1())
    {
        const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_server.connection(), m_server.root(), XCB_CW_EVENT_MASK,
                                     &events);
    }

    /// The windows of a program that say that they answer, shown or not.
    QList<xcb_window_t> announced(qint64 pid) const
    {
        QList<xcb_window_t> found;
        const xcb_atom_t ping = m_server.atom("_NET_WM_PING");
        for (const WindowFacts &window : m_server.windows()) {
            const QByteArray protocols = m_server.property(window.id, "WM_PROTOCOLS");
            const auto *const atoms = reinterpret_cast<const xcb_atom_t *>(protocols.constData());
            const auto count = static_cast<std::size_t>(protocols.size()) / sizeof(xcb_atom_t);
            if (window.pid == pid && std::find(atoms, atoms + count, ping) != atoms + count)
                found << window.id;
        }
        return found;
    }
    testing::AssertionResult isAnswered(xcb_window_t window)
    {
        const uint32_t time = ++m_time;
        xcb_client_message_event_t message = {};
        message.response_type = XCB_CLIENT_MESSAGE;
        message.format = 32;
        message.window = window;
        message.type = m_server.atom("WM_PROTOCOLS");
        message.data.data32[0] = m_server.atom("_NET_WM_PING");
        message.data.data32[1] = time;
        message.data.data32[2] = window;
        xcb_send_event(m_server.connection(), 0, window, XCB_EVENT_MASK_NO_EVENT,
                       reinterpret_cast<const char *>(&message));
        xcb_flush(m_server.connection());
        const bool came = eventually([&] { return hears(window, time); }, std::chrono::seconds{5});
        const auto facts = m_server.facts(window);
        return came ? testing::AssertionSuccess()
                    : testing::AssertionFailure()
                << "no answer of " << std::hex << window << ' '
                << (facts ? facts->windowClass.constData() : "gone");
    }

private:
    bool hears(xcb_window_t window, uint32_t time)
    {
        while (auto *const event = xcb_poll_for_event(m_server.connection())) {
            const auto &message = *reinterpret_cast<const xcb_client_message_event_t *>(event);
            const bool isAnswer = (event->response_type & 0x7f) == XCB_CLIENT_MESSAGE
                && message.window == m_server.root()
                && message.data.data32[0] == m_server.atom("_NET_WM_PING")
                && message.data.data32[1] == time && message.data.data32[2] == window;
            std::free(event);
            if (isAnswer)
                return true;
        }
        return false;
    }

    XServer m_server;
    uint32_t m_time = 1000;
};

class Ping : public EveryDesktop {
protected:
    void expectAnswers(const char *when)
    {
        const auto windows = m_pinger.announced(corvane().program().pid());
        EXPECT_FALSE(windows.isEmpty()) << when;
        for (const xcb_window_t window : windows)
            EXPECT_TRUE(m_pinger.isAnswered(window)) << when;
    }

    Pinger m_pinger{m_desktop};
};
INSTANTIATE_TEST_SUITE_P(, Ping, twoDesktops(), nameOf);

TEST_P(Ping, everyWindowThatAnnouncesItAnswersWhateverTheProgramDoes)
{
    start();
    expectAnswers("at rest");
    ASSERT_TRUE(dropFiles({makeFile(u"one.txt"_s, "x"), makeFile(u"two.txt"_s, "x")}));
    ASSERT_TRUE(corvane().waitForHeight(CorvaneProgram::singleHeight));
    expectAnswers("with the shelf open");
    ASSERT_TRUE(corvane().activateAction(u"preferences"_s));
    ASSERT_TRUE(eventually([&] { return corvane().window().has_value(); }));
    expectAnswers("with the preferences open");
    hands().key(keys::escape);
    focusShelf(corvane().at(20, 20));
    hands().key(keys::space);
    ASSERT_TRUE(eventually([&] { return corvane().window().has_value(); }));
    expectAnswers("with a preview");
    hands().key(keys::escape);
    ASSERT_TRUE(eventually([&] { return !corvane().window(); }));
    {
        XdndSource source(m_desktop, {{"text/plain", "x"}});
        source.pickUp();
        source.hover(corvane().panel().value_or(WindowFacts{}).id, corvane().body().center());
        expectAnswers("while something is dragged over it");
        source.letGo();
    }
    hands().beginDrag(corvane().at(20, 20), corvane().at(20, 20) + QPoint(0, 300));
    hands().glideTo(corvane().at(20, 20) + QPoint(0, 320));
    expectAnswers("while something is dragged out of it");
    hands().release();
}

} // namespace
} // namespace corvane::e2e
