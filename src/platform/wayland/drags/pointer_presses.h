#pragma once

#include <cstdint>
#include <functional>
#include <optional>

struct wl_pointer;
struct wl_seat;

namespace corvane {

/// Hears presses of the pointer's buttons on windows of ours, beside Qt: a drag is allowed by the
/// number of the press that it begins with.
class PointerPresses {
public:
    /// Owns the seat, which may be null.
    explicit PointerPresses(wl_seat *seat);
    ~PointerPresses();
    PointerPresses(const PointerPresses &) = delete;
    PointerPresses &operator=(const PointerPresses &) = delete;

    /// The number of the press that began while no button was down; none once that is let go.
    std::optional<std::uint32_t> serial() const { return m_serial; }
    /// The pointer came into a window of ours, or a button was used there. While something is
    /// dragged, compositors keep that to themselves.
    std::function<void()> onPointer;

private:
    struct Listeners;

    void forget();
    void tell() const;

    wl_seat *m_seat;
    wl_pointer *m_pointer = nullptr;
    std::optional<std::uint32_t> m_serial;
    int m_down = 0;
};

} // namespace corvane
