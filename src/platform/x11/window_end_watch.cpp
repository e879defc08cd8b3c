#include "platform/x11/window_end_watch.h"

#include "platform/x11/x11_qt.h"
#include "platform/x11/x11_reply.h"

namespace corvane {

namespace {

void listen(xcb_window_t window, std::uint32_t mask)
{
    // The window may be gone by now.
    x11_qt::ignoreErrors(xcb_change_window_attributes_checked(x11_qt::connection(), window,
                                                              XCB_CW_EVENT_MASK, &mask));
    xcb_flush(x11_qt::connection());
}

} // namespace

WindowEndWatch::WindowEndWatch(xcb_window_t window)
    : m_window(window)
{
    auto *const qt = x11_qt::connection();
    if (!qt)
        return;
    const X11Reply<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(qt, xcb_get_window_attributes(qt, window), nullptr));
    m_exists = attributes != nullptr;
    if (!attributes)
        return;
    m_previousMask = attributes->your_event_mask;
    m_isOurs = (m_previousMask & XCB_EVENT_MASK_STRUCTURE_NOTIFY) == 0;
    if (m_isOurs)
        listen(window, m_previousMask | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
}

WindowEndWatch::~WindowEndWatch()
{
    if (m_isOurs && x11_qt::connection())
        listen(m_window, m_previousMask);
}

} // namespace corvane
