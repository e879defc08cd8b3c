#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/screens.h"

#include <functional>
#include <memory>

struct wl_compositor;
struct wl_output;
struct wl_shm;

namespace corvane {

class MainQueue;
class WaylandConnection;

/// Finds the screen that the user is on, as the compositor has it.
///
/// None says so by itself. But what asks for no screen is shown on that one: an invisible surface
/// of a single pixel is hung there, below all windows, until it is told where it is. With one
/// screen there is nothing to find. What it is given must outlive it. Main thread only.
class UserWhereabouts {
public:
    /// In seconds: so long an answer is waited for, which comes at once unless the machine is busy.
    static constexpr double patience = 1;

    UserWhereabouts(WaylandConnection &connection, MainQueue &queue, const Screens &screens);
    ~UserWhereabouts();
    UserWhereabouts(const UserWhereabouts &) = delete;
    UserWhereabouts &operator=(const UserWhereabouts &) = delete;

    /// Looks for it, and tells once. Asked meanwhile it goes on looking.
    void find();
    /// Called with the screen, or with null where it was not found. With one screen at once,
    /// otherwise later.
    std::function<void(const ScreenPointer &screen)> onFound;

private:
    class Probe;

    void isOn(const wl_output *output);
    void found(const ScreenPointer &screen);

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    const Screens &m_screens;
    wl_compositor *m_compositor = nullptr;
    wl_shm *m_shm = nullptr;
    std::unique_ptr<Probe> m_probe;
    /// Of what is looked for now.
    Lifetime m_search;
};

} // namespace corvane
