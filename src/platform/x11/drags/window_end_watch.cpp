#include "platform/x11/drags/window_end_watch.h"

#include "platform/x11/base/x11_qt.h"

#include <cstdint>
#include <map>

namespace corvane {

namespace {

/// The event mask that Qt has on the window, to be restored, and how many watches there are.
struct Watched {
    std::uint32_t previousMask = 0;
    int watches = 0;
};

std::map<xcb_window_t, Watched> &watched()
{
    static std::map<xcb_window_t, Watched> windows;
    return windows;
}

void listen(xcb_window_t window, std::uint32_t mask)
{
    // Errors are ignored: the window may be gone.
    x11_qt::ignoreErrors(xcb_change_window_attributes_checked(x11_qt::connection(), window,
                                                              XCB_CW_EVENT_MASK, &mask));
    xcb_flush(x11_qt::connection());
}

X11Reply<xcb_get_window_attributes_reply_t> attributesOf(xcb_window_t window)
{
    return x11_qt::reply<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes(x11_qt::connection(), window));
}

} // namespace

WindowEndWatch::WindowEndWatch(xcb_window_t window)
    : m_window(window)
{
    if (!x11_qt::connection())
        return;
    const auto attributes = attributesOf(window);
    m_exists = attributes || !x11_qt::isAnswering();
    m_isWatching = attributes != nullptr;
    if (!attributes)
        return;
    auto &[previousMask, watches] = watched()[window];
    if (watches++ > 0)
        return;
    previousMask = attributes->your_event_mask;
    listen(window, previousMask | XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    // If it went in between, its end was reported to nobody.
    m_exists = attributesOf(window) || !x11_qt::isAnswering();
}

WindowEndWatch::~WindowEndWatch()
{
    const auto found = watched().find(m_window);
    if (!m_isWatching || found == watched().end() || --found->second.watches > 0)
        return;
    if (x11_qt::connection())
        listen(m_window, found->second.previousMask);
    watched().erase(found);
}

} // namespace corvane
