#pragma once

#include "platform/desktop/motion_preference.h"

namespace corvane::test {

class FakeMotionPreference : public MotionPreference {
public:
    bool reducesMotion() const override { return reduces; }

    bool reduces = false;
};

} // namespace corvane::test
