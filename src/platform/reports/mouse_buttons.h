#pragma once

namespace corvane {

/// The mouse buttons that are held now, even if another program has grabbed the pointer.
class MouseButtons {
public:
    /// The left button's bit.
    static constexpr unsigned left = 1;

    virtual ~MouseButtons() = default;

    /// A bit for each button, bit 0 the left one. 0 when the window system cannot be asked.
    virtual unsigned pressedMouseButtons() const = 0;
};

} // namespace corvane
