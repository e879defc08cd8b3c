#include "platform/freedesktop/decoding/decoder_pool.h"

#include "platform/base/cancellation.h"

#include <QDebug>

#include <sys/eventfd.h>

#include <algorithm>
#include <atomic>
#include <optional>
#include <utility>

namespace corvane {

namespace {

DecodingAttempt::Outcome outcomeOf(decoder_protocol::Outcome outcome)
{
    switch (outcome) {
    case decoder_protocol::Outcome::Made:
        return DecodingAttempt::Outcome::Made;
    case decoder_protocol::Outcome::OverBounds:
        return DecodingAttempt::Outcome::OverBounds;
    case decoder_protocol::Outcome::Unreadable:
    case decoder_protocol::Outcome::NoSuchPart:
        break;
    }
    return DecodingAttempt::Outcome::Unreadable;
}

} // namespace

/// Whether a job was cancelled, for those who wait for a turn and those who wait for a decoder.
struct DecoderPool::Cancelled {
    explicit Cancelled(DecoderPool &pool, Cancellation *cancellation)
        : event(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
    {
        if (!cancellation)
            return;
        handler.emplace(*cancellation, [this, &pool] {
            isSet = true;
            ::eventfd_write(event.number(), 1);
            // Whoever was just about to wait is waiting once the lock is had.
            {
                const std::lock_guard lock(pool.m_mutex);
            }
            pool.m_changed.notify_all();
        });
    }

    FileDescriptor event;
    std::atomic<bool> isSet = false;
    std::optional<Cancellation::Handler> handler;
};

DecoderPool::DecoderPool(const DecoderProgram &program)
    : m_program(program)
    , m_finished(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
}

DecoderPool::~DecoderPool()
{
    finish();
}

void DecoderPool::finish()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isFinished = true;
    }
    ::eventfd_write(m_finished.number(), 1);
    m_changed.notify_all();
}

std::uint32_t DecoderPool::newDocument()
{
    const std::lock_guard lock(m_mutex);
    // Nobody has four thousand million previews; 0 is none.
    return ++m_lastDocument == 0 ? ++m_lastDocument : m_lastDocument;
}

DecoderPool::Slot *DecoderPool::freeSlot(std::uint32_t document)
{
    const auto rank = [document](const Slot &slot) {
        if (document != 0 && slot.document == document)
            return 2;
        return slot.process ? 1 : 0;
    };
    Slot *best = nullptr;
    for (Slot &slot : m_slots) {
        if (!slot.isBusy && (!best || rank(slot) > rank(*best)))
            best = &slot;
    }
    return best;
}

DecoderPool::Slot *DecoderPool::takeSlot(const Job &job, const Cancelled &cancelled)
{
    std::unique_lock lock(m_mutex);
    const auto turn = m_turns.wait(job.urgency);
    Slot *slot = nullptr;
    m_changed.wait(lock, [&] {
        if (m_isFinished || cancelled.isSet)
            return true;
        slot = m_turns.isNext(turn) ? freeSlot(job.request.document) : nullptr;
        return slot != nullptr;
    });
    if (slot) {
        slot->isBusy = true;
        m_turns.began(turn);
    } else {
        m_turns.gaveUp(turn);
    }
    m_changed.notify_all();
    return slot;
}

void DecoderPool::giveBack(Slot &slot, Urgency urgency)
{
    {
        const std::lock_guard lock(m_mutex);
        slot.isBusy = false;
        m_turns.ended(urgency);
    }
    m_changed.notify_all();
}

DecoderPool::Result DecoderPool::run(const Job &job)
{
    if (!m_program.isThere())
        return {};
    const Cancelled cancelled(*this, job.cancellation);
    Slot *const slot = takeSlot(job, cancelled);
    if (!slot)
        return {};
    Result result = runIn(*slot, job, cancelled);
    giveBack(*slot, job.urgency);
    return result;
}

bool DecoderPool::waitForPause(std::unique_lock<std::mutex> &lock, const Cancelled &cancelled)
{
    const auto isOver = [&] { return m_isFinished || cancelled.isSet; };
    if (const auto end = m_deaths.pausedUntil())
        m_changed.wait_until(lock, *end, isOver);
    return !isOver();
}

bool DecoderPool::provide(Slot &slot, const Cancelled &cancelled)
{
    if (slot.process && slot.process->isUsable())
        return true;
    slot.process.reset();
    slot.document = 0;
    {
        std::unique_lock lock(m_mutex);
        if (!waitForPause(lock, cancelled))
            return false;
    }
    slot.process = DecoderProcess::start(m_program.command(), m_finished);
    if (slot.process) {
        tellOfLayers(slot.process->greeting());
        return true;
    }
    const std::lock_guard lock(m_mutex);
    m_deaths.died(DeathRecord::Clock::now());
    return false;
}

void DecoderPool::tellOfLayers(const decoder_protocol::Greeting &greeting)
{
    const std::lock_guard lock(m_mutex);
    if (std::exchange(m_hasTold, true))
        return;
    if (!m_program.isShutIn())
        qWarning("[Corvane] Pictures are decoded without namespaces: bubblewrap cannot be used.");
    if (!greeting.hasFilter)
        qWarning("[Corvane] Pictures are decoded without a filter of system calls.");
    if (!greeting.hasLimits)
        qWarning("[Corvane] Pictures are decoded without all limits of memory and time.");
}

DecoderPool::Result DecoderPool::runIn(Slot &slot, const Job &job, const Cancelled &cancelled)
{
    using Ending = DecoderProcess::Ending;
    decoder_protocol::Request request = job.request;
    DecoderProcess::Result said;
    // A decoder that ended by itself meanwhile has not seen the request.
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (!provide(slot, cancelled))
            return {};
        {
            const std::lock_guard lock(m_mutex);
            request.number = ++m_lastNumber;
        }
        slot.document = request.document;
        said = slot.process->ask(request, job.descriptors, {cancelled.event, m_finished});
        if (said.ending != Ending::NotServed)
            break;
    }
    // What misbehaved is ended now, not when somebody asks again.
    if (!slot.process->isUsable())
        slot.process.reset();
    switch (said.ending) {
    case Ending::Replied:
        return {outcomeOf(said.reply.outcome), false, std::move(said.reply),
                std::move(said.pixels)};
    case Ending::Died: {
        const std::lock_guard lock(m_mutex);
        m_deaths.died(DeathRecord::Clock::now());
        return {DecodingAttempt::Outcome::OverBounds, false, {}, {}};
    }
    case Ending::OverTime:
        return {DecodingAttempt::Outcome::OverBounds, true, {}, {}};
    case Ending::NotServed: {
        const std::lock_guard lock(m_mutex);
        m_deaths.died(DeathRecord::Clock::now());
        break;
    }
    case Ending::Cancelled:
        break;
    }
    return {};
}

} // namespace corvane
