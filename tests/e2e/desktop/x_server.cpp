#include "e2e/desktop/x_server.h"

#include <QtEndian>

#include <xcb/shape.h>
#include <xcb/xfixes.h>

#include <cstdlib>
#include <cstring>

namespace corvane::e2e {

namespace {

struct Free {
    void operator()(void *reply) const { std::free(reply); }
};
template<class T>
using Reply = std::unique_ptr<T, Free>;

template<class T>
Reply<T> owned(T *reply)
{
    return Reply<T>(reply);
}

/// Most window managers' frames have no class; newer versions of mutter leave them to a program.
bool isFrame(const WindowFacts &window)
{
    return window.windowClass.isEmpty() || window.windowClass.startsWith("mutter-x11-frames");
}

} // namespace

XServer::XServer(const QByteArray &display)
    : m_connection(xcb_connect(display.constData(), nullptr))
{
    if (isConnected())
        m_root = xcb_setup_roots_iterator(xcb_get_setup(connection())).data->root;
    const auto *fixesExtension = xcb_get_extension_data(connection(), &xcb_xfixes_id);
    if (!fixesExtension || !fixesExtension->present)
        return;
    // XFixes refuses requests of clients that have not told their version.
    const auto fixes = owned(xcb_xfixes_query_version_reply(
        connection(), xcb_xfixes_query_version(connection(), 4, 0), nullptr));
}

bool XServer::isConnected() const
{
    return xcb_connection_has_error(connection()) == 0;
}

QSize XServer::size() const
{
    auto geometry = owned(
        xcb_get_geometry_reply(connection(), xcb_get_geometry(connection(), m_root), nullptr));
    return geometry ? QSize(geometry->width, geometry->height) : QSize();
}

xcb_atom_t XServer::atom(const QByteArray &name) const
{
    auto reply = owned(xcb_intern_atom_reply(
        connection(),
        xcb_intern_atom(connection(), 0, static_cast<uint16_t>(name.size()), name.constData()),
        nullptr));
    return reply ? reply->atom : noAtom;
}

QByteArray XServer::property(xcb_window_t window, const QByteArray &name) const
{
    auto reply = owned(xcb_get_property_reply(
        connection(),
        xcb_get_property(connection(), 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, 65536),
        nullptr));
    if (!reply)
        return {};
    return {static_cast<const char *>(xcb_get_property_value(reply.get())),
            xcb_get_property_value_length(reply.get())};
}

std::optional<xcb_window_t> XServer::windowProperty(xcb_window_t window,
                                                    const QByteArray &name) const
{
    const QByteArray value = property(window, name);
    if (value.size() < 4)
        return std::nullopt;
    return qFromUnaligned<uint32_t>(value.constData());
}

xcb_window_t XServer::selectionOwner(const QByteArray &selection) const
{
    auto reply = owned(xcb_get_selection_owner_reply(
        connection(), xcb_get_selection_owner(connection(), atom(selection)), nullptr));
    return reply ? reply->owner : noWindow;
}

xcb_window_t XServer::focusedWindow() const
{
    auto reply = owned(
        xcb_get_input_focus_reply(connection(), xcb_get_input_focus(connection()), nullptr));
    return reply ? reply->focus : noWindow;
}

std::optional<WindowFacts> XServer::facts(xcb_window_t window) const
{
    const auto attributesCookie = xcb_get_window_attributes(connection(), window);
    const auto geometryCookie = xcb_get_geometry(connection(), window);
    const auto placeCookie = xcb_translate_coordinates(connection(), window, m_root, 0, 0);
    auto attributes
        = owned(xcb_get_window_attributes_reply(connection(), attributesCookie, nullptr));
    auto geometry = owned(xcb_get_geometry_reply(connection(), geometryCookie, nullptr));
    auto place = owned(xcb_translate_coordinates_reply(connection(), placeCookie, nullptr));
    if (!attributes || !geometry || !place)
        return std::nullopt;

    WindowFacts facts;
    facts.id = window;
    facts.frame = QRect(place->dst_x, place->dst_y, geometry->width, geometry->height);
    facts.isViewable = attributes->map_state == XCB_MAP_STATE_VIEWABLE;
    facts.isOverrideRedirect = attributes->override_redirect != 0;
    facts.windowClass = property(window, "WM_CLASS");
    facts.pid = windowProperty(window, "_NET_WM_PID").value_or(0);
    return facts;
}

void XServer::collect(xcb_window_t window, int depth, QList<WindowFacts> &found) const
{
    auto tree
        = owned(xcb_query_tree_reply(connection(), xcb_query_tree(connection(), window), nullptr));
    if (!tree)
        return;
    const xcb_window_t *children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const auto child = facts(children[i]);
        if (!child)
            continue;
        found.append(*child);
        // The program's window is one or two levels below its frame.
        if (isFrame(*child) && depth > 0)
            collect(child->id, depth - 1, found);
    }
}

QList<WindowFacts> XServer::windows() const
{
    QList<WindowFacts> found;
    collect(m_root, 2, found);
    return found;
}

QList<QRect> XServer::shape(xcb_window_t window, uint8_t kind) const
{
    auto reply = owned(xcb_shape_get_rectangles_reply(
        connection(),
        xcb_shape_get_rectangles(connection(), window, static_cast<xcb_shape_kind_t>(kind)),
        nullptr));
    QList<QRect> rectangles;
    if (!reply)
        return rectangles;
    const xcb_rectangle_t *all = xcb_shape_get_rectangles_rectangles(reply.get());
    for (int i = 0; i < xcb_shape_get_rectangles_rectangles_length(reply.get()); ++i)
        rectangles.append(QRect(all[i].x, all[i].y, all[i].width, all[i].height));
    return rectangles;
}

QList<QRect> XServer::inputShape(xcb_window_t window) const
{
    return shape(window, XCB_SHAPE_SK_INPUT);
}

QList<QRect> XServer::boundingShape(xcb_window_t window) const
{
    return shape(window, XCB_SHAPE_SK_BOUNDING);
}

QByteArray XServer::pointerPicture() const
{
    const auto reply = owned(xcb_xfixes_get_cursor_image_reply(
        connection(), xcb_xfixes_get_cursor_image(connection()), nullptr));
    if (!reply)
        return {};
    const qsizetype pixels = xcb_xfixes_get_cursor_image_cursor_image_length(reply.get());
    return QByteArray(
        reinterpret_cast<const char *>(xcb_xfixes_get_cursor_image_cursor_image(reply.get())),
        pixels * qsizetype(sizeof(std::uint32_t)));
}

QImage XServer::picture(const QRect &area) const
{
    const QRect seen = area.intersected(QRect({0, 0}, size()));
    if (seen.isEmpty())
        return {};
    auto reply = owned(xcb_get_image_reply(connection(),
                                           xcb_get_image(connection(), XCB_IMAGE_FORMAT_Z_PIXMAP,
                                                         m_root, static_cast<int16_t>(seen.x()),
                                                         static_cast<int16_t>(seen.y()),
                                                         static_cast<uint16_t>(seen.width()),
                                                         static_cast<uint16_t>(seen.height()), ~0U),
                                           nullptr));
    QImage image(seen.size(), QImage::Format_RGB32);
    const auto length = reply ? xcb_get_image_data_length(reply.get()) : 0;
    if (length != image.sizeInBytes())
        return {};
    std::memcpy(image.bits(), xcb_get_image_data(reply.get()), static_cast<size_t>(length));
    return image;
}

QPoint XServer::pointerPosition() const
{
    auto reply = owned(
        xcb_query_pointer_reply(connection(), xcb_query_pointer(connection(), m_root), nullptr));
    return reply ? QPoint(reply->root_x, reply->root_y) : QPoint();
}

void XServer::sendToRoot(xcb_window_t window, const QByteArray &type,
                         std::array<uint32_t, 5> data) const
{
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(type);
    std::copy(data.begin(), data.end(), message.data.data32);
    xcb_send_event(connection(), 0, m_root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY,
                   reinterpret_cast<const char *>(&message));
    xcb_flush(connection());
}

void XServer::moveResize(xcb_window_t window, const QRect &frame) const
{
    // Static gravity, x, y, width and height given, asked by a pager.
    constexpr uint32_t flags = 10U | 0xfU << 8U | 2U << 12U;
    sendToRoot(window, "_NET_MOVERESIZE_WINDOW",
               {flags, static_cast<uint32_t>(frame.x()), static_cast<uint32_t>(frame.y()),
                static_cast<uint32_t>(frame.width()), static_cast<uint32_t>(frame.height())});
}

void XServer::activate(xcb_window_t window) const
{
    sendToRoot(window, "_NET_ACTIVE_WINDOW", {2U, 0U, 0U, 0U, 0U});
}

MapLog::MapLog(const QByteArray &display)
    : m_server(display)
{
    const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_server.connection(), m_server.root(), XCB_CW_EVENT_MASK, &mask);
    // After the reply, all further events are noted.
    m_server.focusedWindow();
}

int MapLog::panelsShown(qint64 pid)
{
    m_server.focusedWindow();
    while (auto event = owned(xcb_poll_for_event(m_server.connection()))) {
        if ((event->response_type & 0x7f) == XCB_MAP_NOTIFY)
            m_shown.append(reinterpret_cast<const xcb_map_notify_event_t &>(*event).window);
    }
    int count = 0;
    for (const xcb_window_t window : m_shown) {
        const auto facts = m_server.facts(window);
        if (facts && facts->pid == pid && facts->isOverrideRedirect && facts->frame.top() == 0)
            ++count;
    }
    return count;
}

KeyLog::KeyLog(const QByteArray &display, xcb_window_t window)
    : m_server(display)
{
    // Each connection has its own event mask, so the program is not affected.
    const uint32_t mask = XCB_EVENT_MASK_KEY_PRESS;
    xcb_change_window_attributes(m_server.connection(), window, XCB_CW_EVENT_MASK, &mask);
    m_server.focusedWindow();
}

int KeyLog::presses()
{
    m_server.focusedWindow();
    while (auto event = owned(xcb_poll_for_event(m_server.connection())))
        m_presses += (event->response_type & 0x7f) == XCB_KEY_PRESS ? 1 : 0;
    return m_presses;
}

} // namespace corvane::e2e
