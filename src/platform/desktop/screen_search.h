#pragma once

#include "platform/base/lifetime.h"
#include "platform/desktop/screens.h"

#include <functional>

namespace corvane {

class MainQueue;

/// Finds a screen that nobody tells of, by a trick of the window system's that a derived class
/// knows. With one screen there is nothing to find. What it is given must outlive it. Main thread
/// only.
class ScreenSearch {
public:
    ScreenSearch(const ScreenSearch &) = delete;
    ScreenSearch &operator=(const ScreenSearch &) = delete;
    virtual ~ScreenSearch() = default;

    /// Looks for it, and tells once. Asked meanwhile it goes on looking.
    void find();
    /// Called with the screen, or with null where it was not found. With one screen at once,
    /// otherwise later.
    std::function<void(const ScreenPointer &screen)> onFound;

protected:
    ScreenSearch(MainQueue &queue, const Screens &screens);

    /// Looks for it, among several. False if that cannot be done, and nothing was begun.
    virtual bool begin() = 0;
    /// Nothing is looked for any more. Called once after each `begin` that returned true, but not
    /// by the destructor.
    virtual void end() = 0;

    MainQueue &queue() const { return m_queue; }
    const Screens &screens() const { return m_screens; }
    /// Of what is looked for now.
    const Lifetime &search() const { return m_search; }
    /// To be called at most once for each `begin`, not in the middle of one.
    void found(const ScreenPointer &screen);
    /// In seconds.
    void giveUpAfter(double patience);

private:
    void tell(const ScreenPointer &screen) const;

    MainQueue &m_queue;
    const Screens &m_screens;
    bool m_isUnderWay = false;
    Lifetime m_search;
};

} // namespace corvane
