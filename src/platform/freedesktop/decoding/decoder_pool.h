#pragma once

#include "platform/freedesktop/decoding/death_record.h"
#include "platform/freedesktop/decoding/decoder_process.h"
#include "platform/freedesktop/decoding/decoder_program.h"
#include "platform/freedesktop/decoding/decoder_turns.h"
#include "platform/pictures/image_codec.h"

#include <array>
#include <condition_variable>
#include <cstdint>
#include <memory>
#include <mutex>
#include <optional>

namespace corvane {

class Cancellation;

/// The decoders that run: at most two, each started when it is needed and as long as it behaves.
/// What is asked for waits its turn, the more urgent first. Any thread but the main one; waits.
///
/// One of them at most has a large room. It is asked about what another one had not the memory for,
/// and about thumbnails that a brief attempt was not enough for; and where a preview needs it, what
/// takes long there begins again later.
///
/// The program must outlive it. A decoder that nobody asks anything ends by itself, which wakes
/// nobody here.
class DecoderPool {
public:
    using Urgency = DecoderTurns::Urgency;
    using Room = decoder_protocol::Room;

    struct Job {
        /// Its number is set here.
        decoder_protocol::Request request;
        /// What the decoder is to be sent; open until the end of the job.
        std::vector<int> descriptors = {};
        Urgency urgency = Urgency::Thumbnail;
        /// Nobody with a large room is asked: that takes longer, and others may wait for one.
        bool isBrief = false;
        /// May be null.
        Cancellation *cancellation = nullptr;
    };
    struct Result {
        DecodingAttempt::Outcome outcome = DecodingAttempt::Outcome::Interrupted;
        /// The time was not enough.
        bool isOverTime = false;
        /// The memory was not, of the last one that was asked.
        bool lacksRoom = false;
        /// What the decoder said, if it did.
        decoder_protocol::Reply reply;
        FileDescriptor pixels;
    };

    explicit DecoderPool(const DecoderProgram &program);
    DecoderPool(const DecoderPool &) = delete;
    DecoderPool &operator=(const DecoderPool &) = delete;
    ~DecoderPool();

    Result run(const Job &job);
    /// Nothing is decoded any more: what runs or waits ends at once, interrupted.
    void finish();

    /// Tells one document's requests from those of others.
    std::uint32_t newDocument();

private:
    struct Slot {
        std::unique_ptr<DecoderProcess> process;
        /// Of the process, or of the one that is about to be started.
        Room room = Room::Usual;
        bool isBusy = false;
        /// What it may have kept open.
        std::uint32_t document = 0;
    };
    struct Cancelled;

    Room firstRoomOf(const Job &job);
    /// None if the job was displaced.
    std::optional<Result> runIn(Room room, const Job &job, const Cancelled &cancelled);
    Slot *takeSlot(const Job &job, Room room, const Cancelled &cancelled);
    Slot *freeSlot(std::uint32_t document, Room room);
    void giveBack(Slot &slot, Urgency urgency);
    bool waitForPause(std::unique_lock<std::mutex> &lock, const Cancelled &cancelled);
    DecoderProcess::Result askIn(Slot &slot, const Job &job, const Cancelled &cancelled);
    Result resultOf(DecoderProcess::Result said);
    bool provide(Slot &slot, const Cancelled &cancelled);
    void countDeath();
    void displaceLongOne();
    void tellOfLayers(const decoder_protocol::Greeting &greeting);

    const DecoderProgram &m_program;
    FileDescriptor m_finished;
    /// Readable while what takes long in the large room is to make way.
    FileDescriptor m_displaced;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<Slot, 2> m_slots;
    DecoderTurns m_turns;
    bool m_isLargeOneLong = false;
    bool m_isFinished = false;
    bool m_hasTold = false;
    bool m_hasToldOfStart = false;
    DeathRecord m_deaths;
    std::uint32_t m_lastNumber = 0;
    std::uint32_t m_lastDocument = 0;
};

} // namespace corvane
