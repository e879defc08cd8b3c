#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QUrl>

namespace corvane {

class ImageCodec;
class SpoolPlace;

/// Re-encodes pictures into files of the spool. A large picture takes seconds and is held decoded
/// meanwhile, so this is called on any thread but the main one. The codec must outlive it.
class ImageConverter {
public:
    explicit ImageConverter(const ImageCodec &codec);

    /// Writes the picture, as `type`, to the place. False, and no file is left, when the picture
    /// cannot be read or written, or when its place was given up (`SpoolPlace::isWanted`).
    bool transcode(const QUrl &fileAt, const UTType &type, const SpoolPlace &to) const;
    bool transcode(const QByteArray &data, const UTType &type, const SpoolPlace &to) const;

private:
    const ImageCodec &m_codec;
};

} // namespace corvane
