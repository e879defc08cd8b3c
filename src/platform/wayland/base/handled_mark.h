#pragma once

#include <functional>

struct wl_callback;
struct wl_display;

namespace corvane {

/// Tells once that the compositor has handled all that was asked of it on a connection before: what
/// is asked on another one may be handled earlier otherwise.
class HandledMark {
public:
    /// `onHandled` is not called once this is destroyed, and may destroy it; never without a
    /// connection, which must outlive it.
    HandledMark(wl_display *display, std::function<void()> onHandled);
    ~HandledMark();
    HandledMark(const HandledMark &) = delete;
    HandledMark &operator=(const HandledMark &) = delete;

private:
    struct Listener;

    void forget();

    std::function<void()> m_onHandled;
    wl_callback *m_callback = nullptr;
};

} // namespace corvane
