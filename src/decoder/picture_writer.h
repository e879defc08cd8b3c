#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QImage>

#include <optional>

class QIODevice;

/// Encodes pictures that were decoded, or drawn by ourselves. Any thread.
namespace corvane::picture_writer {

/// The picture as `type`, with all bits of its channels and the colours of translucent pixels as
/// far as the type allows. False if the type cannot be written, or the device fails.
bool write(const QImage &image, const UTType &type, QIODevice &device);
std::optional<QByteArray> encoded(const QImage &image, const UTType &type);

} // namespace corvane::picture_writer
