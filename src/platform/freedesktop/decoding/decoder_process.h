#pragma once

#include "platform/pictures/decoder_protocol.h"
#include "platform/system/file_descriptor.h"

#include <QByteArrayList>

#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace corvane {

/// One decoder, from its start to its end. One thread at a time. The destructor ends it at once.
class DecoderProcess {
public:
    using Milliseconds = std::chrono::milliseconds;

    /// How long a cancelled request may take to end by itself.
    static constexpr Milliseconds graceOfCancelled{200};
    static constexpr Milliseconds patienceForStart{5'000};

    /// Tells a waiting thread something: readable means cancelled.
    struct Signals {
        /// The request is not wanted any more.
        const FileDescriptor &cancelled;
        /// Nothing is: no grace.
        const FileDescriptor &finished;
        /// It has to begin again, because another one needs its memory. May be null.
        const FileDescriptor *displaced = nullptr;
    };

    /// Runs the command, hands it one end of a socket pair, and waits for the greeting. Null if
    /// none came.
    static std::unique_ptr<DecoderProcess> start(const QByteArrayList &command,
                                                 const FileDescriptor &finished);
    DecoderProcess(const DecoderProcess &) = delete;
    DecoderProcess &operator=(const DecoderProcess &) = delete;
    ~DecoderProcess();

    const decoder_protocol::Greeting &greeting() const { return m_greeting; }

    enum class Ending {
        Replied,
        /// It ended before it saw the request: by itself, as it does after a while, or otherwise.
        NotServed,
        /// It crashed, or said what it must not say, while it served the request.
        Died,
        /// It was ended while it served the request, by the kernel for want of the machine's memory
        /// for example.
        Vanished,
        OverTime,
        Cancelled,
        Displaced,
    };
    /// Whether it says that something may be wrong with all decoders. Taking too long does not: a
    /// slow picture is in order, and so is one that nobody wants any more.
    static constexpr bool isDeath(Ending ending)
    {
        return ending == Ending::Died || ending == Ending::Vanished || ending == Ending::NotServed;
    }
    struct Result {
        Ending ending = Ending::Died;
        decoder_protocol::Reply reply;
        FileDescriptor pixels;
    };
    /// Asks and waits, for no longer than the request says.
    Result ask(const decoder_protocol::Request &request, const std::vector<int> &descriptors,
               const Signals &signals);

    /// Ends it, and returns once its memory is free, or nothing is wanted any more.
    void end(const FileDescriptor &finished);

    /// Whether it may be asked again: it is not in the middle of something, has not misbehaved, and
    /// has not ended.
    bool isUsable();

private:
    DecoderProcess(FileDescriptor socket, FileDescriptor process,
                   const decoder_protocol::Greeting &greeting);
    Result takeReply(const decoder_protocol::Request &request);
    Result ended(Ending ending);
    void kill() const;

    FileDescriptor m_socket;
    FileDescriptor m_process;
    decoder_protocol::Greeting m_greeting;
    bool m_isUsable = true;
};

} // namespace corvane
