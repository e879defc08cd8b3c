#pragma once

namespace corvane {

/// Whether the user asked the desktop for less movement.
class MotionPreference {
public:
    virtual ~MotionPreference() = default;

    virtual bool reducesMotion() const = 0;
};

} // namespace corvane
