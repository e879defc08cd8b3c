#pragma once

#include <QCoreApplication>
#include <QThread>

#include <chrono>

namespace corvane::e2e {

/// What one condition is waited for before a test takes it for broken. Generous: a loaded machine
/// is slow, and a condition that comes true ends the wait at once.
inline constexpr std::chrono::milliseconds patience{30000};

/// Waits until `condition` gives true (or something that converts to it), and tells whether it did.
template<class Condition>
bool eventually(Condition &&condition, std::chrono::milliseconds limit = patience)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!static_cast<bool>(condition())) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        QCoreApplication::processEvents();
        QThread::msleep(5);
    }
    return true;
}

} // namespace corvane::e2e
