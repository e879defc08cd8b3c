#include "platform/freedesktop/decoding/received_picture.h"

#include "platform/pictures/picture_memory.h"

namespace corvane {

namespace {

struct Mapping {
    const uchar *address;
    qint64 bytes;
};

void freeMapping(void *raw)
{
    const auto *const mapping = static_cast<Mapping *>(raw);
    picture_memory::unmap(mapping->address, mapping->bytes);
    delete mapping;
}

} // namespace

std::optional<QImage> receivedPicture(const decoder_protocol::Reply &reply,
                                      const FileDescriptor &pixels)
{
    constexpr qint64 small = 1'048'576;
    if (!reply.pixels)
        return std::nullopt;
    const auto &shape = *reply.pixels;
    const auto bytes = decoder_protocol::byteCount(shape);
    const uchar *const address = bytes ? picture_memory::map(pixels, *bytes) : nullptr;
    if (!address)
        return std::nullopt;
    auto *const mapping = new Mapping{address, *bytes};
    const QImage image(address, shape.size.width(), shape.size.height(), shape.bytesPerLine,
                       shape.format, freeMapping, mapping);
    if (image.isNull()) {
        freeMapping(mapping);
        return std::nullopt;
    }
    return *bytes <= small ? image.copy() : image;
}

} // namespace corvane
