#pragma once

#include "fakes/fake_pointer.h"
#include "fakes/fake_screens.h"
#include "input/pointer_screen_locator.h"

namespace corvane::test {

/// Two screens side by side, and the user on the first of them until the test moves the pointer.
struct UserScreens {
    FakeScreens screens;
    std::shared_ptr<Screen> left = screens.attach(QRectF(0, 0, 800, 800));
    std::shared_ptr<Screen> right = screens.attach(QRectF(800, 0, 1600, 800));
    FakePointer pointer;
    PointerScreenLocator locator{screens, pointer};
};

} // namespace corvane::test
