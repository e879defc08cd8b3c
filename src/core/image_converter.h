#pragma once

#include "platform/ut_type.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace corvane {

class ImageCodec;
class ScratchSpool;

/// Re-encodes pictures into the spool. Both references must outlive it.
class ImageConverter {
public:
    ImageConverter(const ImageCodec &codec, ScratchSpool &spool);

    /// The new file's address, named after the old one; none when it cannot be read or written.
    std::optional<QUrl> transcode(const QUrl &fileAt, const UTType &type) const;
    std::optional<QUrl> transcode(const QByteArray &data, const UTType &type,
                                  const QString &basename) const;

private:
    const ImageCodec &m_codec;
    ScratchSpool &m_spool;
};

} // namespace corvane
