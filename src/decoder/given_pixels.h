#pragma once

#include "platform/system/file_descriptor.h"

#include <QImage>

/// Pixels on their way to the program.
namespace corvane::given_pixels {

/// Pictures with more bytes than this are written in pieces of so many.
inline constexpr qint64 piece = 4LL * 1024 * 1024;

/// Writes that many bytes of the image. Of a large one, which nobody else has, they are lost on the
/// way: what was written is freed at once, for two of them would need twice the memory.
bool write(const FileDescriptor &memory, const QImage &image, qint64 bytes);

} // namespace corvane::given_pixels
