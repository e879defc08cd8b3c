#pragma once

#include "platform/reports/pointer_barriers.h"
#include "platform/x11/base/x11_connection.h"

#include <xcb/xfixes.h>

#include <vector>

namespace corvane {

/// Watches top edges by pointer barriers: lines that the server lets the pointer pass in every
/// direction but up, where it could not go anyway, and whose hits it reports. No window at the edge
/// is needed. What it is given must outlive it.
class X11PointerBarriers : public PointerBarriers {
public:
    /// A row of pixels, from `left` to `right` inclusive.
    struct Line {
        int left = 0;
        int right = 0;
        int y = 0;

        friend bool operator==(const Line &, const Line &) = default;
    };

    X11PointerBarriers(X11Connection &connection, const Screens &screens);
    ~X11PointerBarriers() override;
    X11PointerBarriers(const X11PointerBarriers &) = delete;
    X11PointerBarriers &operator=(const X11PointerBarriers &) = delete;

    void watch(const std::vector<EdgeStretch> &stretches) override;

    /// The lines for these stretches, without the parts above which another screen continues.
    static std::vector<Line> outerLines(const std::vector<EdgeStretch> &stretches,
                                        const std::vector<ScreenPointer> &screens);

private:
    void listen();
    void raise(const Line &line);
    void handle(const xcb_generic_event_t &event);
    void hit(xcb_xfixes_barrier_t barrier);
    void left(xcb_xfixes_barrier_t barrier);
    bool isOurs(xcb_xfixes_barrier_t barrier) const;

    X11Connection &m_connection;
    const Screens &m_screens;
    Subscription m_listener;
    /// A window that is never shown; hits are reported to it, so that nothing is selected on the
    /// root window. Made at the first use.
    xcb_window_t m_ear = XCB_NONE;
    std::vector<xcb_xfixes_barrier_t> m_barriers;
    /// The barrier that the pointer was pushed against and has not left.
    xcb_xfixes_barrier_t m_visited = XCB_NONE;
};

} // namespace corvane
