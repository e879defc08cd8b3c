// A mend for the file manager, which is started with this library before all others.
//
// To open a folder, pcmanfm-qt looks at it on a thread, and waits for that thread in an event loop.
// The thread ends the loop directly. Where it does so before the loop runs, Qt forgets the wish,
// and the file manager waits for good and never shows a window. Here the thread repeats its wish
// until the loop has ended.

#include <dlfcn.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <mutex>

namespace {

std::mutex guard;
/// Loops of the main thread that have ended.
unsigned ended = 0;

template<class Function>
Function next(const char *name)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

bool isMainThread()
{
    return ::syscall(SYS_gettid) == ::getpid();
}

constexpr auto execName = "_ZN10QEventLoop4execE6QFlagsINS_17ProcessEventsFlagEE";
constexpr auto exitName = "_ZN10QEventLoop4exitEi";

} // namespace

// The functions of QEventLoop, which this program of another version of Qt cannot name otherwise.
extern "C" {

int execLoop(void *loop,
             int flags) __asm__("_ZN10QEventLoop4execE6QFlagsINS_17ProcessEventsFlagEE");
void exitLoop(void *loop, int code) __asm__("_ZN10QEventLoop4exitEi");
void quitLoop(void *loop) __asm__("_ZN10QEventLoop4quitEv");

int execLoop(void *loop, int flags)
{
    static const auto exec = next<int (*)(void *, int)>(execName);
    const int code = exec(loop, flags);
    if (isMainThread()) {
        const std::lock_guard lock(guard);
        ++ended;
    }
    return code;
}

void exitLoop(void *loop, int code)
{
    static const auto exit = next<void (*)(void *, int)>(exitName);
    if (isMainThread()) {
        exit(loop, code);
        return;
    }
    // Long enough for the main thread to come to its loop. One that never does was never asked for.
    constexpr int mostTimes = 10'000;
    unsigned before = 0;
    for (int times = 0; times < mostTimes; ++times) {
        {
            const std::lock_guard lock(guard);
            if (times == 0)
                before = ended;
            if (ended != before)
                return;
            exit(loop, code);
        }
        ::usleep(1000);
    }
}

void quitLoop(void *loop)
{
    exitLoop(loop, 0);
}
}
