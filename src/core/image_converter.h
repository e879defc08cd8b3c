#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QUrl>

namespace corvane {

class ImageCodec;
class SpoolPlace;

/// Re-encodes pictures into the spool. It takes seconds for a large one, and holds the decoded
/// picture meanwhile: any thread but the main one. The codec must outlive it.
class ImageConverter {
public:
    explicit ImageConverter(const ImageCodec &codec);

    /// Both write the new file to the place; false, and nothing is there, when the picture cannot
    /// be read or written, or nobody wants the file any more.
    bool transcode(const QUrl &fileAt, const UTType &type, const SpoolPlace &to) const;
    bool transcode(const QByteArray &data, const UTType &type, const SpoolPlace &to) const;

private:
    const ImageCodec &m_codec;
};

} // namespace corvane
