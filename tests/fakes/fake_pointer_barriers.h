#pragma once

#include "platform/reports/full_screen_windows.h"
#include "platform/reports/pointer_barriers.h"

#include <utility>

namespace corvane::test {

/// Top edges that a test pushes the pointer against. Like the real one it reports only stretches
/// that are watched.
class FakePointerBarriers : public PointerBarriers {
public:
    void watch(const std::vector<EdgeStretch> &stretches) override
    {
        watched = stretches;
        ++watchCount;
        m_isEntered = false;
    }

    void push()
    {
        if (watched.empty() || std::exchange(m_isEntered, true) || !onEntered)
            return;
        onEntered();
    }
    void leave()
    {
        if (std::exchange(m_isEntered, false) && onLeft)
            onLeft();
    }

    std::vector<EdgeStretch> watched;
    int watchCount = 0;

private:
    bool m_isEntered = false;
};

class FakeFullScreenWindows : public FullScreenWindows {
public:
    bool isCovered(const Screen &screen) const override { return &screen == covered; }

    const Screen *covered = nullptr;
};

} // namespace corvane::test
