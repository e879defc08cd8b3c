#include "platform/qt/base/unix_signals.h"

#include "platform/base/end_deadline.h"

#include <QSocketNotifier>

#include <sys/eventfd.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdint>
#include <utility>

namespace corvane {

namespace {

constexpr std::array handledSignals = {SIGTERM, SIGINT, SIGHUP};
std::array<struct sigaction, handledSignals.size()> previousActions = {};
std::atomic<int> wakeDescriptor = -1;

extern "C" void wakeMainThread(int)
{
    const int savedError = errno;
    // The main thread may be blocked for ever.
    end_deadline::set(end_deadline::forSteps);
    const std::uint64_t one = 1;
    // It fails only when the counter is full; then the wake-up is already on its way.
    [[maybe_unused]] const auto written = ::write(wakeDescriptor, &one, sizeof one);
    errno = savedError;
}

} // namespace

UnixSignals::UnixSignals(std::function<void()> onTerminate)
    : m_onTerminate(std::move(onTerminate))
    , m_descriptor(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    wakeDescriptor = m_descriptor;
    const auto *notifier = new QSocketNotifier(m_descriptor, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        std::uint64_t count = 0;
        if (::read(m_descriptor, &count, sizeof count) == sizeof count)
            m_onTerminate();
    });

    struct sigaction action = {};
    action.sa_handler = wakeMainThread;
    // SA_RESETHAND: the handler is for one signal only; the next one has its default action.
    action.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    sigemptyset(&action.sa_mask);
    for (std::size_t i = 0; i < handledSignals.size(); ++i)
        ::sigaction(handledSignals[i], &action, &previousActions[i]);
}

UnixSignals::~UnixSignals()
{
    for (std::size_t i = 0; i < handledSignals.size(); ++i)
        ::sigaction(handledSignals[i], &previousActions[i], nullptr);
    wakeDescriptor = -1;
    ::close(m_descriptor);
}

} // namespace corvane
