#pragma once

#include "platform/pictures/decoder_protocol.h"

#include <QIODevice>
#include <QImage>
#include <QSize>

#include <optional>

/// Decodes the first picture of contents that are not trusted. Formats are recognised by the
/// contents, never by a name, and only formats with a signature are read, because the others accept
/// any bytes. Where a picture may need more memory than the limits leave, and another decoder has
/// more, std::bad_alloc is thrown. One thread at a time.
namespace corvane::picture_decoding {

using Formats = decoder_protocol::Formats;

/// To be called once, before anything is decoded.
void setLimits(decoder_protocol::Room room = decoder_protocol::Room::Large);

/// As stored, without decoding it.
std::optional<QSize> pixelSize(QIODevice &device, Formats formats = Formats::Any);
/// At full size and upright, with all bits of its channels and with the colours of translucent
/// pixels.
std::optional<QImage> whole(QIODevice &device, Formats formats = Formats::Any);
/// Upright, scaled while decoding so that its longer side is at most `maximumPixels`; as
/// `Format_ARGB32_Premultiplied` or `Format_RGB32`. A smaller picture keeps its size; drawings
/// (SVG) are drawn at that size.
std::optional<QImage> thumbnail(QIODevice &device, int maximumPixels,
                                Formats formats = Formats::Any);

} // namespace corvane::picture_decoding
