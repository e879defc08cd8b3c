#pragma once

#include <cstdint>

namespace corvane {

/// Facts about mice, touchpads and the like. Main thread only.
class PointingDevices {
public:
    virtual ~PointingDevices() = default;

    /// Whether the device, by the window system's id, is a touchpad.
    virtual bool isTouchpad(std::int64_t device) = 0;
};

} // namespace corvane
