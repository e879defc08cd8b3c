#pragma once

#include <QCoreApplication>
#include <QThread>

#include <chrono>
#include <utility>

namespace corvane::e2e {

/// What one condition is waited for before a test takes it for broken. Generous: a loaded machine
/// is slow, and a condition that comes true ends the wait at once.
inline constexpr std::chrono::milliseconds patience{30000};

/// How long the wait for a condition lasts before it is looked at again: what is looked at must be
/// able to run meanwhile.
inline constexpr std::chrono::milliseconds lookAgain{5};

/// Waits until `condition` gives true (or something that converts to it), and tells whether it did.
template<class Condition>
bool eventually(Condition &&condition, std::chrono::milliseconds limit = patience)
{
    const auto deadline = std::chrono::steady_clock::now() + limit;
    while (!static_cast<bool>(condition())) {
        if (std::chrono::steady_clock::now() >= deadline)
            return false;
        QCoreApplication::processEvents();
        QThread::msleep(lookAgain.count());
    }
    return true;
}

/// Waits until what `look` gives has stayed the same for a while, and gives it; a default-made
/// value where it never does. Emptiness does not count as rest.
template<class Look>
auto atRest(Look &&look)
{
    constexpr std::chrono::milliseconds longEnough{80};
    auto last = look();
    auto since = std::chrono::steady_clock::now();
    const bool rests = eventually([&] {
        auto now = look();
        if (now != last || now == decltype(now){}) {
            last = std::move(now);
            since = std::chrono::steady_clock::now();
        }
        return std::chrono::steady_clock::now() - since >= longEnough;
    });
    return rests ? last : decltype(last){};
}

} // namespace corvane::e2e
