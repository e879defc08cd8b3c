#include "platform/x11/drags/property_reader.h"

#include <cstdlib>
#include <memory>
#include <utility>

namespace corvane::test {

PropertyReader::PropertyReader(xcb_connection_t *connection, xcb_window_t window,
                               xcb_atom_t property, xcb_atom_t incremental)
    : m_connection(connection)
    , m_window(window)
    , m_property(property)
    , m_incremental(incremental)
{
}

std::optional<QByteArray> PropertyReader::take()
{
    constexpr std::uint32_t everything = 16U * 1024 * 1024;
    const auto cookie = xcb_get_property(m_connection, 1, m_window, m_property,
                                         XCB_GET_PROPERTY_TYPE_ANY, 0, everything);
    const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> reply(
        xcb_get_property_reply(m_connection, cookie, nullptr), &std::free);
    if (!reply)
        return std::nullopt;
    if (reply->type == m_incremental) {
        m_isWaiting = true;
        m_bytes.clear();
        return std::nullopt;
    }
    const QByteArray piece(static_cast<const char *>(xcb_get_property_value(reply.get())),
                           xcb_get_property_value_length(reply.get()));
    if (!m_isWaiting)
        return piece;
    m_bytes += piece;
    if (!piece.isEmpty())
        return std::nullopt;
    m_isWaiting = false;
    return std::exchange(m_bytes, {});
}

} // namespace corvane::test
