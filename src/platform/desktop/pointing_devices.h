#pragma once

#include <cstdint>

namespace corvane {

/// What is known of the devices that the pointer is moved with. Main thread only.
class PointingDevices {
public:
    virtual ~PointingDevices() = default;

    /// By the window system's id for the device.
    virtual bool isTouchpad(std::int64_t device) = 0;
};

} // namespace corvane
