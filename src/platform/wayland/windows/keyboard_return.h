#pragma once

#include "platform/base/lifetime.h"

#include <memory>

namespace corvane {

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

    /// Does so at a later turn of the loop; nothing while it is being done.
    void start();

private:
    class Guest;

    void come();
    void go();

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    bool m_isUnderWay = false;
    std::unique_ptr<Guest> m_guest;
    /// Of the guest that is there.
    Lifetime m_stay;
    Lifetime m_lifetime;
};

} // namespace corvane
