// A clock that stands still, for a program that is started with this library before all others.
//
// While the file that CORVANE_CLOCK_STOPS names is there, the program's time stops as soon as it
// shows a window; once the file is gone it goes on from where it stood.

#include <dlfcn.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <mutex>

namespace {

using Nanoseconds = std::int64_t;
constexpr Nanoseconds second = 1'000'000'000;

template<class Function>
Function real(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

std::mutex mutex;
// Guarded by it.
bool isStopped = false;
Nanoseconds stoppedAt = 0;
Nanoseconds lost = 0;

bool isToStop()
{
    const char *const path = std::getenv("CORVANE_CLOCK_STOPS");
    return path && ::access(path, F_OK) == 0;
}

int askRealClock(clockid_t clock, timespec *time)
{
    static const auto ask = real<int (*)(clockid_t, timespec *)>("clock_gettime");
    return ask(clock, time);
}

Nanoseconds realNow()
{
    timespec time = {};
    askRealClock(CLOCK_MONOTONIC, &time);
    return time.tv_sec * second + time.tv_nsec;
}

Nanoseconds now()
{
    const std::lock_guard lock(mutex);
    if (isStopped && !isToStop()) {
        isStopped = false;
        lost += realNow() - stoppedAt;
    }
    return (isStopped ? stoppedAt : realNow()) - lost;
}

void windowIsShown()
{
    const std::lock_guard lock(mutex);
    if (isStopped || !isToStop())
        return;
    isStopped = true;
    stoppedAt = realNow();
}

} // namespace

extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept
{
    if (clock != CLOCK_MONOTONIC)
        return askRealClock(clock, time);
    const Nanoseconds moment = now();
    time->tv_sec = moment / second;
    time->tv_nsec = moment % second;
    return 0;
}

extern "C" xcb_void_cookie_t xcb_map_window(xcb_connection_t *connection, xcb_window_t window)
{
    windowIsShown();
    using Map = xcb_void_cookie_t (*)(xcb_connection_t *, xcb_window_t);
    return real<Map>("xcb_map_window")(connection, window);
}
