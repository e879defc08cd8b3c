#pragma once

#include <QCoreApplication>
#include <QThread>

#include <chrono>
#include <utility>

namespace corvane::e2e {

/// How long a test waits for one condition before it fails. Long, because a loaded machine is slow,
/// and a wait ends as soon as the condition holds.
inline constexpr std::chrono::milliseconds patience{30000};

/// The pause between two checks of a condition, so that what is checked can run.
inline constexpr std::chrono::milliseconds lookAgain{5};

/// Waits until `condition` gives true (or something that converts to it), and returns whether it
/// did.
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

/// Waits until the value of `look` has stayed the same for a while, and returns it; a
/// default-constructed value if that does not happen. An empty value does not count.
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
