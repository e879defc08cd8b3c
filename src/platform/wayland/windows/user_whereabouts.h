#pragma once

#include "platform/desktop/screen_search.h"

#include <memory>

struct wl_compositor;
struct wl_output;
struct wl_shm;

namespace corvane {

class WaylandConnection;

/// Finds the screen that the user is on, as the compositor has it.
///
/// None says so by itself. But what asks for no screen is shown on that one: an invisible surface
/// of a single pixel is hung there, below all windows, until it is told where it is.
class UserWhereabouts : public ScreenSearch {
public:
    /// In seconds: so long an answer is waited for, which comes at once unless the machine is busy.
    static constexpr double patience = 1;

    UserWhereabouts(WaylandConnection &connection, MainQueue &queue, const Screens &screens);
    ~UserWhereabouts() override;

private:
    class Probe;

    bool begin() override;
    void end() override;
    void isOn(const wl_output *output);

    WaylandConnection &m_connection;
    wl_compositor *m_compositor = nullptr;
    wl_shm *m_shm = nullptr;
    std::unique_ptr<Probe> m_probe;
};

} // namespace corvane
