// Any bytes as a packet that the decoder gets, and as one that the program gets: what is accepted
// is written as the same bytes again. Pixels are mapped only out of memory that is exactly what the
// reply says and that nobody can change any more.

#include "platform/freedesktop/decoding/received_picture.h"
#include "platform/pictures/decoder_protocol.h"
#include "platform/pictures/image_codec.h"
#include "platform/pictures/picture_memory.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <cstdlib>

namespace {

using namespace corvane;

void expect(bool isRight)
{
    if (!isRight)
        std::abort();
}

FileDescriptor sealed(qint64 bytes)
{
    return picture_memory::make(
        [bytes](const FileDescriptor &memory) { return ::ftruncate(memory.number(), bytes) == 0; });
}

FileDescriptor changeable(qint64 bytes)
{
    FileDescriptor memory(::memfd_create("fuzz", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    expect(::ftruncate(memory.number(), bytes) == 0);
    return memory;
}

void receive(const decoder_protocol::Reply &reply)
{
    const auto bytes = decoder_protocol::byteCount(*reply.pixels);
    expect(bytes && *bytes > 0 && *bytes <= ImageCodec::maximumDecodedBytes);
    const auto picture = receivedPicture(reply, sealed(*bytes));
    expect(picture && picture->size() == reply.pixels->size);
    // The corners are there.
    expect(picture->pixel(0, 0) == picture->pixel(picture->width() - 1, picture->height() - 1));
    expect(!receivedPicture(reply, sealed(*bytes - 1)));
    expect(!receivedPicture(reply, sealed(*bytes + 1)));
    expect(!receivedPicture(reply, changeable(*bytes)));
    expect(!receivedPicture(reply, FileDescriptor()));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    namespace protocol = decoder_protocol;
    const QByteArray packet(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto request = protocol::parsedRequest(packet);
    expect(!request || protocol::encoded(*request) == packet);
    const auto reply = protocol::parsedReply(packet);
    expect(!reply || protocol::encoded(*reply) == packet);
    if (reply && reply->pixels)
        receive(*reply);
    const auto greeting = protocol::parsedGreeting(packet);
    expect(!greeting || protocol::encoded(*greeting) == packet);
    expect(!protocol::isFarewell(packet) || packet == protocol::farewell());
    return 0;
}
