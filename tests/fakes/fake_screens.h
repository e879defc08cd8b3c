#pragma once

#include "platform/base/callback_list.h"
#include "platform/desktop/screens.h"

#include <algorithm>
#include <utility>

namespace corvane::test {

/// Displays that a test plugs in and out. The first one attached becomes the main one.
class FakeScreens : public Screens {
public:
    std::vector<ScreenPointer> screens() const override
    {
        return {m_screens.begin(), m_screens.end()};
    }
    ScreenPointer mainScreen() const override { return m_main; }
    void observeChanges(std::function<void()> callback) override
    {
        m_observers.add(std::move(callback));
    }

    /// The returned display may be changed; call `notifyChanges` afterwards.
    std::shared_ptr<Screen> attach(const Screen &screen)
    {
        auto attached = std::make_shared<Screen>(screen);
        m_screens.push_back(attached);
        if (!m_main)
            m_main = attached;
        return attached;
    }
    std::shared_ptr<Screen> attach(const QRectF &frame, double scale = 1)
    {
        Screen screen;
        screen.frame = screen.availableFrame = frame;
        screen.backingScaleFactor = scale;
        return attach(screen);
    }
    /// Unplugs a display; the first of those left becomes the main one if it was that.
    void detach(const ScreenPointer &screen)
    {
        std::erase_if(m_screens, [&](const auto &attached) { return attached == screen; });
        if (m_main == screen)
            m_main = m_screens.empty() ? nullptr : m_screens.front();
    }
    void setMainScreen(const ScreenPointer &screen) { m_main = screen; }
    void notifyChanges() { m_observers.notify(); }

private:
    std::vector<std::shared_ptr<Screen>> m_screens;
    ScreenPointer m_main;
    CallbackList<> m_observers;
};

} // namespace corvane::test
