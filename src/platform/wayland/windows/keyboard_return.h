#pragma once

#include "platform/base/lifetime.h"

#include <functional>
#include <memory>

namespace corvane {

class HandledMark;
class MainQueue;
class WaylandConnection;

/// Has a compositor give the keyboard to whom it belongs, where it has left it with a panel.
///
/// It looks for the owner only when a window goes that had the keyboard by right. So an invisible
/// one comes, gets the keyboard, and goes. What it is given must outlive it. Main thread only.
class KeyboardReturn {
public:
    /// Seconds after which it goes even if it was not given the keyboard.
    static constexpr double patience = 0.5;

    KeyboardReturn(WaylandConnection &connection, MainQueue &queue);
    ~KeyboardReturn();
    KeyboardReturn(const KeyboardReturn &) = delete;
    KeyboardReturn &operator=(const KeyboardReturn &) = delete;

    /// Does so later; nothing while it is being done.
    void start();
    /// The same where a panel still has the keyboard once the compositor has handled all that it
    /// was asked before. Elsewhere the one that comes would take it from whoever has it now: KWin
    /// refuses what is dropped to X11's programs while none of their windows has it.
    void startWhere(std::function<bool()> isLeftBehind);

private:
    class Guest;

    void come();
    void go();

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    bool m_isUnderWay = false;
    /// Empty where that is known.
    std::function<bool()> m_isLeftBehind;
    std::unique_ptr<HandledMark> m_handled;
    std::unique_ptr<Guest> m_guest;
    /// Of the guest that is there.
    Lifetime m_stay;
    Lifetime m_lifetime;
};

} // namespace corvane
