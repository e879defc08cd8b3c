#pragma once

#include "platform/pictures/decoder_protocol.h"
#include "platform/system/file_descriptor.h"

#include <QImage>

#include <optional>

namespace corvane {

/// The picture that the decoder sent; none if its memory is not what the reply says. Large ones are
/// not copied: the memory is freed along with the image.
std::optional<QImage> receivedPicture(const decoder_protocol::Reply &reply,
                                      const FileDescriptor &pixels);

} // namespace corvane
