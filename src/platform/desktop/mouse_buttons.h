#pragma once

namespace corvane {

/// The buttons that are down right now, whoever has the pointer.
class MouseButtons {
public:
    static constexpr unsigned left = 1;

    virtual ~MouseButtons() = default;

    /// A bit for each button, bit 0 the left one. 0 when the window system cannot be asked.
    virtual unsigned pressedMouseButtons() const = 0;
};

} // namespace corvane
