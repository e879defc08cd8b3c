#pragma once

#include <QByteArray>

#include <xcb/xcb.h>

#include <optional>

namespace corvane::test {

/// Reads a property as the receiver of a selection does: at once, or piece by piece where the owner
/// announces that.
class PropertyReader {
public:
    PropertyReader(xcb_connection_t *connection, xcb_window_t window, xcb_atom_t property,
                   xcb_atom_t incremental);

    /// Takes what is in the property and removes it. Gives the contents once they are complete.
    std::optional<QByteArray> take();
    /// Whether the owner is to put more into the property.
    bool isWaiting() const { return m_isWaiting; }
    qsizetype size() const { return m_bytes.size(); }

private:
    xcb_connection_t *m_connection;
    xcb_window_t m_window;
    xcb_atom_t m_property;
    xcb_atom_t m_incremental;
    bool m_isWaiting = false;
    QByteArray m_bytes;
};

} // namespace corvane::test
