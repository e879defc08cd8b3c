#pragma once

#include "platform/x11/base/x11_connection.h"

#include <functional>

namespace corvane {

/// Tells when another program has taken the selection that a drag's contents are had by, as every
/// source does when a drag begins. The connection must outlive it.
class X11DragSelection {
public:
    /// `onTaken` may destroy this.
    X11DragSelection(X11Connection &connection, std::function<void()> onTaken);
    X11DragSelection(const X11DragSelection &) = delete;
    X11DragSelection &operator=(const X11DragSelection &) = delete;
    ~X11DragSelection() = default;

private:
    void handle(const xcb_generic_event_t &event);

    X11Connection &m_connection;
    std::function<void()> m_onTaken;
    Subscription m_listener;
};

} // namespace corvane
