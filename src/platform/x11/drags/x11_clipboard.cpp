#include "platform/x11/drags/x11_clipboard.h"

#include "platform/x11/drags/x11_incoming_drag.h"

#include <algorithm>
#include <cstring>
#include <vector>

namespace corvane {

X11Clipboard::X11Clipboard(X11Connection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
    , m_reader(connection, queue, "CLIPBOARD")
{
}

void X11Clipboard::look(Found found)
{
    const xcb_window_t owner = m_reader.owner();
    if (owner == XCB_NONE || m_reader.count() >= maximumLooks) {
        found(nullptr);
        return;
    }
    constexpr qsizetype mostBytes = 64LL * 1024;
    m_reader.read(m_connection.atom("TARGETS"), XCB_CURRENT_TIME, mostBytes,
                  [this, owner, found = std::move(found)](SelectionReader::Outcome outcome,
                                                          const QByteArray &targets) {
                      if (outcome == SelectionReader::Outcome::Arrived)
                          answered(owner, targets, found);
                      else
                          found(nullptr);
                  });
}

void X11Clipboard::answered(xcb_window_t owner, const QByteArray &targets, const Found &found)
{
    const auto offered = static_cast<std::size_t>(targets.size()) / sizeof(xcb_atom_t);
    std::vector<xcb_atom_t> types(std::min(offered, maximumTypes));
    if (types.empty()) {
        found(nullptr);
        return;
    }
    std::memcpy(types.data(), targets.constData(), types.size() * sizeof(xcb_atom_t));
    const X11IncomingDrag::Source source{.source = owner, .target = XCB_NONE, .types = types};
    found(std::make_shared<X11IncomingDrag>(m_connection, m_queue, m_reader, source));
}

} // namespace corvane
