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
    case decoder_protocol::Outcome::Crashed:
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
    , m_displaced(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
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

DecoderPool::Room DecoderPool::firstRoomOf(const Job &job)
{
    // It has had its brief attempt.
    if (job.urgency == Urgency::SlowThumbnail)
        return Room::Large;
    const std::uint32_t document = job.request.document;
    const std::lock_guard lock(m_mutex);
    const bool isLarge = document != 0 && std::ranges::any_of(m_slots, [&](const Slot &slot) {
                             return slot.document == document && slot.room == Room::Large;
                         });
    return isLarge ? Room::Large : Room::Usual;
}

DecoderPool::Slot *DecoderPool::freeSlot(std::uint32_t document, Room room)
{
    const auto rank = [=](const Slot &slot) {
        if (slot.room == room && document != 0 && slot.document == document)
            return 3;
        if (!slot.process)
            return 1;
        return slot.room == room ? 2 : 0;
    };
    Slot *best = nullptr;
    for (Slot &slot : m_slots) {
        if (!slot.isBusy && (!best || rank(slot) > rank(*best)))
            best = &slot;
    }
    return best;
}

DecoderPool::Slot *DecoderPool::takeSlot(const Job &job, Room room, const Cancelled &cancelled)
{
    std::unique_lock lock(m_mutex);
    const auto turn = m_turns.wait(job.urgency, room);
    if (job.urgency == Urgency::Preview && room == Room::Large)
        displaceLongOne();
    Slot *slot = nullptr;
    m_changed.wait(lock, [&] {
        if (m_isFinished || cancelled.isSet)
            return true;
        slot = m_turns.isNext(turn) ? freeSlot(job.request.document, room) : nullptr;
        return slot != nullptr;
    });
    if (slot) {
        slot->isBusy = true;
        m_turns.began(turn);
        if (room == Room::Large)
            m_isLargeOneLong = DecoderTurns::isLong(job.urgency);
    } else {
        m_turns.gaveUp(turn);
    }
    m_changed.notify_all();
    return slot;
}

void DecoderPool::displaceLongOne()
{
    if (m_isLargeOneLong)
        ::eventfd_write(m_displaced.number(), 1);
}

void DecoderPool::giveBack(Slot &slot, Urgency urgency)
{
    {
        const std::lock_guard lock(m_mutex);
        slot.isBusy = false;
        m_turns.ended(urgency, slot.room);
        if (slot.room == Room::Large) {
            eventfd_t ignored = 0;
            ::eventfd_read(m_displaced.number(), &ignored);
            m_isLargeOneLong = false;
        }
    }
    m_changed.notify_all();
}

DecoderPool::Result DecoderPool::run(const Job &job)
{
    if (!m_program.isThere())
        return {};
    const Cancelled cancelled(*this, job.cancellation);
    Room room = firstRoomOf(job);
    while (true) {
        auto result = runIn(room, job, cancelled);
        if (!result)
            continue;
        result->lacksRoom = result->reply.outcome == decoder_protocol::Outcome::OverBounds;
        if (!result->lacksRoom || room == Room::Large || job.isBrief)
            return std::move(*result);
        room = Room::Large;
    }
}

std::optional<DecoderPool::Result> DecoderPool::runIn(Room room, const Job &job,
                                                      const Cancelled &cancelled)
{
    Slot *const slot = takeSlot(job, room, cancelled);
    if (!slot)
        return Result();
    if (slot->process && slot->room != room) {
        slot->process->end(m_finished);
        slot->process.reset();
    }
    {
        const std::lock_guard lock(m_mutex);
        slot->room = room;
    }
    DecoderProcess::Result said = askIn(*slot, job, cancelled);
    // What misbehaved is ended now, not when somebody asks again.
    if (slot->process && !slot->process->isUsable()) {
        slot->process->end(m_finished);
        slot->process.reset();
    }
    giveBack(*slot, job.urgency);
    if (said.ending == DecoderProcess::Ending::Displaced)
        return std::nullopt;
    return resultOf(std::move(said));
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
    if (slot.process)
        slot.process->end(m_finished);
    slot.process.reset();
    {
        std::unique_lock lock(m_mutex);
        slot.document = 0;
        if (!waitForPause(lock, cancelled))
            return false;
    }
    slot.process = DecoderProcess::start(m_program.command(slot.room), m_finished);
    if (slot.process) {
        tellOfLayers(slot.process->greeting());
        return true;
    }
    const std::lock_guard lock(m_mutex);
    m_deaths.died(DeathRecord::Clock::now());
    if (!m_isFinished && !std::exchange(m_hasToldOfStart, true))
        qWarning(
            "[Corvane] corvane-decoder did not start: thumbnails and previews may be missing.");
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

void DecoderPool::countDeath()
{
    const std::lock_guard lock(m_mutex);
    m_deaths.died(DeathRecord::Clock::now());
}

DecoderProcess::Result DecoderPool::askIn(Slot &slot, const Job &job, const Cancelled &cancelled)
{
    using Ending = DecoderProcess::Ending;
    decoder_protocol::Request request = job.request;
    DecoderProcess::Result said;
    bool hasVanished = false;
    // A decoder that ended by itself meanwhile has not seen the request.
    constexpr int attempts = 3;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        if (!provide(slot, cancelled))
            return {Ending::Cancelled, {}, {}};
        {
            const std::lock_guard lock(m_mutex);
            request.number = ++m_lastNumber;
            slot.document = request.document;
        }
        DecoderProcess::Signals signals = {cancelled.event, m_finished};
        if (slot.room == Room::Large && DecoderTurns::isLong(job.urgency))
            signals.displaced = &m_displaced;
        said = slot.process->ask(request, job.descriptors, signals);
        // What was ended from outside is begun once more, since nothing says that its picture was
        // to blame.
        if (said.ending == Ending::Vanished && !std::exchange(hasVanished, true))
            countDeath();
        else if (said.ending != Ending::NotServed)
            break;
    }
    return said;
}

DecoderPool::Result DecoderPool::resultOf(DecoderProcess::Result said)
{
    using Ending = DecoderProcess::Ending;
    if (DecoderProcess::isDeath(said.ending))
        countDeath();
    switch (said.ending) {
    case Ending::Replied:
        return {outcomeOf(said.reply.outcome), false, false, std::move(said.reply),
                std::move(said.pixels)};
    case Ending::Died:
        return {DecodingAttempt::Outcome::OverBounds, false, false, {}, {}};
    case Ending::OverTime:
        return {DecodingAttempt::Outcome::OverBounds, true, false, {}, {}};
    case Ending::Vanished:
    case Ending::NotServed:
    case Ending::Cancelled:
    case Ending::Displaced:
        break;
    }
    return {};
}

} // namespace corvane
