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

namespace corvane {

class Cancellation;

/// The decoders that run: at most two, each started when it is needed and as long as it behaves.
/// What is asked for waits its turn, the more urgent first. Any thread but the main one; waits.
///
/// The program must outlive it. A decoder that nobody asks anything ends by itself, which wakes
/// nobody here.
class DecoderPool {
public:
    using Urgency = DecoderTurns::Urgency;

    struct Job {
        /// Its number is set here.
        decoder_protocol::Request request;
        /// What the decoder is to be sent; open until the end of the job.
        std::vector<int> descriptors = {};
        Urgency urgency = Urgency::Thumbnail;
        /// May be null.
        Cancellation *cancellation = nullptr;
    };
    struct Result {
        DecodingAttempt::Outcome outcome = DecodingAttempt::Outcome::Interrupted;
        /// The time was not enough.
        bool isOverTime = false;
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
        bool isBusy = false;
        /// What it may have kept open.
        std::uint32_t document = 0;
    };
    struct Cancelled;

    Slot *takeSlot(const Job &job, const Cancelled &cancelled);
    Slot *freeSlot(std::uint32_t document);
    void giveBack(Slot &slot, Urgency urgency);
    bool waitForPause(std::unique_lock<std::mutex> &lock, const Cancelled &cancelled);
    Result runIn(Slot &slot, const Job &job, const Cancelled &cancelled);
    bool provide(Slot &slot, const Cancelled &cancelled);
    void tellOfLayers(const decoder_protocol::Greeting &greeting);

    const DecoderProgram &m_program;
    FileDescriptor m_finished;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::array<Slot, 2> m_slots;
    DecoderTurns m_turns;
    bool m_isFinished = false;
    bool m_hasTold = false;
    DeathRecord m_deaths;
    std::uint32_t m_lastNumber = 0;
    std::uint32_t m_lastDocument = 0;
};

} // namespace corvane
