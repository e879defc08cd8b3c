#include "platform/base/end_deadline.h"

#include <unistd.h>

#include <atomic>
#include <csignal>
#include <ctime>

namespace corvane::end_deadline {

namespace {

timer_t timer = {};
std::atomic<bool> isPrepared = false;
std::atomic<bool> isSet = false;

extern "C" void endProcess(int)
{
    // Another process may send an alarm, too.
    if (isSet)
        ::_exit(0);
}

} // namespace

void prepare()
{
    if (isPrepared)
        return;
    struct sigaction action = {};
    action.sa_handler = endProcess;
    action.sa_flags = SA_RESTART;
    sigemptyset(&action.sa_mask);
    struct sigevent event = {};
    event.sigev_notify = SIGEV_SIGNAL;
    event.sigev_signo = SIGALRM;
    isPrepared = ::sigaction(SIGALRM, &action, nullptr) == 0
        && ::timer_create(CLOCK_MONOTONIC, &event, &timer) == 0;
}

void set(std::chrono::milliseconds patience)
{
    if (!isPrepared)
        return;
    isSet = true;
    const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(patience);
    const std::chrono::nanoseconds rest = patience - seconds;
    itimerspec time = {};
    time.it_value.tv_sec = seconds.count();
    time.it_value.tv_nsec = rest.count();
    ::timer_settime(timer, 0, &time, nullptr);
}

} // namespace corvane::end_deadline
