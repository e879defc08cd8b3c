#include "support/layer_desk.h"

#include "support/table.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDir>
#include <QFile>

#include <xcb/xfixes.h>

#include <chrono>
#include <cstdlib>
#include <memory>
#include <stdexcept>

namespace corvane::bench {

namespace {

using namespace std::chrono_literals;

e2e::DesktopKind kindOf(const std::string &compositor, bool hasXWayland)
{
    return {.windowManager
            = compositor == "kwin" ? e2e::WindowManager::KWin : e2e::WindowManager::Sway,
            .compositor = e2e::Compositor::None,
            .nested = {.hasXWayland = hasXWayland}};
}

void closeTheGuide(const QString &configuration)
{
    QDir().mkpath(configuration + u"/Corvane");
    QFile settings(configuration + u"/Corvane/Corvane.conf");
    settings.open(QFile::WriteOnly);
    settings.write("[General]\nsettings.seenWelcome=true\n");
}

void become(const QProcessEnvironment &environment)
{
    for (const QString &name : QProcessEnvironment::systemEnvironment().keys())
        qunsetenv(qPrintable(name));
    for (const QString &name : environment.keys())
        qputenv(qPrintable(name), environment.value(name).toLocal8Bit());
}

} // namespace

LayerDesk::LayerDesk(const std::string &compositor, bool hasXWayland)
    : m_desktop(kindOf(compositor, hasXWayland))
{
    if (!m_desktop.problem().isEmpty())
        throw std::runtime_error(m_desktop.problem().toStdString());
    become(m_desktop.environment());
    closeTheGuide(m_desktop.environment().value(QStringLiteral("XDG_CONFIG_HOME")));
    hands().moveTo({100, 900});
}

bool LayerDesk::showsSomething()
{
    constexpr int columns = 16;
    e2e::XServer &screen = m_desktop.server();
    const QImage picture = screen.picture({(screen.size().width() - columns) / 2, 0, columns, 1});
    for (int x = 0; x < columns; ++x) {
        if ((picture.pixel(x, 0) | 0xff000000U) != e2e::NestedCompositor::wallpaper)
            return true;
    }
    return false;
}

double LayerDesk::waitUntilItShows(bool something)
{
    const double start = now();
    while (showsSomething() != something) {
        if (now() - start > 10'000)
            throw std::runtime_error(something ? "nothing is shown" : "the panel stays");
    }
    return now();
}

void LayerDesk::moveOften()
{
    for (int i = 0; i < 1000; ++i) {
        hands().moveBy({i < 500 ? 1 : -1, i % 2 == 0 ? 3 : -3});
        // Apart, so that a program which hears them has to wake up for each.
        std::this_thread::sleep_for(2ms);
    }
    std::this_thread::sleep_for(100ms);
}

void LayerDesk::toggle(const QString &service)
{
    static const QDBusConnection bus = QDBusConnection::connectToBus(
        qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("desk"));
    QDBusMessage call = QDBusMessage::createMethodCall(
        service, u'/' + QString(service).replace(u'.', u'/'),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Activate"));
    call << QVariantMap();
    bus.send(call);
}

DragNotices::DragNotices()
    : m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection) != 0)
        throw std::runtime_error("no X server for X11's programs");
    const auto *const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
    // Sway tells of drags only once a window has been there and was painted.
    m_window = xcb_generate_id(m_connection);
    const std::uint32_t backgroundAndNoManager[] = {0, 1};
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, screen->root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_BACK_PIXEL | XCB_CW_OVERRIDE_REDIRECT, backgroundAndNoManager);
    xcb_map_window(m_connection, m_window);
    xcb_flush(m_connection);
    std::this_thread::sleep_for(300ms);
    xcb_unmap_window(m_connection, m_window);

    constexpr char name[] = "XdndSelection";
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
        xcb_intern_atom_reply(m_connection, xcb_intern_atom(m_connection, 0, sizeof name - 1, name),
                              nullptr),
        &std::free);
    std::free(xcb_xfixes_query_version_reply(
        m_connection, xcb_xfixes_query_version(m_connection, 5, 0), nullptr));
    xcb_xfixes_select_selection_input(m_connection, screen->root, atom->atom,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER);
    xcb_flush(m_connection);
    m_thread = std::thread([this] { listen(); });
}

DragNotices::~DragNotices()
{
    xcb_client_message_event_t end{};
    end.response_type = XCB_CLIENT_MESSAGE;
    end.format = 32;
    end.window = m_window;
    xcb_send_event(m_connection, 0, m_window, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&end));
    xcb_flush(m_connection);
    m_thread.join();
    xcb_disconnect(m_connection);
}

void DragNotices::listen()
{
    const int first = xcb_get_extension_data(m_connection, &xcb_xfixes_id)->first_event;
    while (auto *const event = xcb_wait_for_event(m_connection)) {
        const int type = event->response_type & 0x7f;
        std::free(event);
        if (type == first + XCB_XFIXES_SELECTION_NOTIFY)
            m_latest = now();
        else if (type == XCB_CLIENT_MESSAGE)
            return;
    }
}

} // namespace corvane::bench
