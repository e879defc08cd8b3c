#pragma once

#include "platform/desktop/pointer_barriers.h"
#include "platform/x11/base/x11_connection.h"

#include <xcb/xfixes.h>

#include <vector>

namespace corvane {

/// Watches top edges by pointer barriers: lines that the server lets the pointer through in every
/// direction but up, which nothing could do there anyway, and whose hits it tells. There is no
/// window at the edge. What it is given must outlive it.
class X11PointerBarriers : public PointerBarriers {
public:
    /// A row of pixels, both ends included.
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

    /// The stretches without what another screen continues upward.
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
    /// Never shown: hits are told to it, so that nothing has to be heard on the root window. Made
    /// when it is first needed.
    xcb_window_t m_ear = XCB_NONE;
    std::vector<xcb_xfixes_barrier_t> m_barriers;
    /// The one that the pointer was pushed against and has not left.
    xcb_xfixes_barrier_t m_visited = XCB_NONE;
};

} // namespace corvane
