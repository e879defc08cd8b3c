#pragma once

#include <functional>
#include <memory>

namespace corvane {

/// The main thread's queue of work, its timers and its clock. Other code of the main thread has no
/// timers of its own, except for windows' animations of Qt.
class MainQueue {
public:
    using Work = std::function<void()>;

    /// A repeating timer: destroying it stops it, also from inside its own work.
    class Timer {
    public:
        Timer() = default;
        Timer(const Timer &) = delete;
        Timer &operator=(const Timer &) = delete;
        virtual ~Timer() = default;
    };

    virtual ~MainQueue() = default;

    /// Runs `work` later on the main thread, never inside this call. From any thread; work given
    /// by one thread runs in the order in which it was given.
    virtual void async(Work work) = 0;

    /// Runs `work` on the main thread once `seconds` have passed. Main thread only.
    virtual void asyncAfter(double seconds, Work work) = 0;

    /// Runs `work` every `seconds` while the returned timer lives, also while a drag or a menu runs
    /// an event loop of its own. Main thread only.
    [[nodiscard]] virtual std::unique_ptr<Timer> repeating(double seconds, Work work) = 0;

    /// In seconds, on a clock that never goes back; its zero has no meaning.
    virtual double now() const = 0;
};

} // namespace corvane
