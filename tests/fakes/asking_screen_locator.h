#pragma once

#include "platform/desktop/screen_locator.h"

#include <functional>
#include <utility>
#include <vector>

namespace corvane::test {

/// Has to ask the desktop where the user is, which the test answers.
class AskingScreenLocator : public ScreenLocator {
public:
    ScreenPointer activeScreen() const override { return m_screen; }
    void locate(const std::function<void()> &then) override { m_waiting.push_back(then); }

    bool isAsked() const { return !m_waiting.empty(); }
    void answer(const ScreenPointer &screen)
    {
        m_screen = screen;
        for (const auto &then : std::exchange(m_waiting, {}))
            then();
    }

private:
    ScreenPointer m_screen;
    std::vector<std::function<void()>> m_waiting;
};

} // namespace corvane::test
