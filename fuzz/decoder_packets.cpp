// Any bytes as a packet that the decoder gets, and as one that the program gets: what is accepted
// is written as the same bytes again, and never says that there are pixels which no picture can
// have.

#include "platform/pictures/decoder_protocol.h"
#include "platform/pictures/image_codec.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    namespace protocol = corvane::decoder_protocol;
    const QByteArray packet(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto request = protocol::parsedRequest(packet);
    if (request && protocol::encoded(*request) != packet)
        std::abort();
    const auto reply = protocol::parsedReply(packet);
    if (reply && protocol::encoded(*reply) != packet)
        std::abort();
    if (reply && reply->pixels) {
        const auto bytes = protocol::byteCount(*reply->pixels);
        if (!bytes || *bytes <= 0 || *bytes > corvane::ImageCodec::maximumDecodedBytes)
            std::abort();
    }
    const auto greeting = protocol::parsedGreeting(packet);
    if (greeting && protocol::encoded(*greeting) != packet)
        std::abort();
    if (protocol::isFarewell(packet) && packet != protocol::farewell())
        std::abort();
    return 0;
}
