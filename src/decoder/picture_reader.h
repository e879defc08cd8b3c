#pragma once

#include "decoder/ending_at_errors.h"
#include "platform/pictures/decoder_protocol.h"

#include <QBuffer>
#include <QImageReader>

#include <optional>

class QIODevice;

namespace corvane {

/// A picture, not trusted, that is about to be decoded. The format is recognised by the contents,
/// and only formats with a signature are read, because the others accept any bytes. Compressed
/// drawings (SVGZ) are refused, since their size when expanded is not limited. Drawings are read
/// without the files that they refer to. One thread at a time.
class PictureReader {
public:
    using Formats = decoder_protocol::Formats;

    /// Opens the picture. False if it is of no format that is read, or none of those. The device
    /// must outlive the reader.
    bool open(QIODevice &device, Formats formats = Formats::Any);

    QImageReader &reader() { return m_reader; }
    /// Whether it is a drawing without pixels of its own (SVG).
    bool isVector() const;
    /// Decodes the picture, with the options set on the reader, upright, as
    /// `Format_ARGB32_Premultiplied` or `Format_RGB32`. None if its pixels need more than
    /// `ImageCodec::maximumDecodedBytes`. Throws std::bad_alloc if they need less than that, but
    /// may need more than this process has.
    std::optional<QImage> read();
    /// The same in the format of its decoder, so that no bits of channels are lost, and colours are
    /// not multiplied with alpha.
    std::optional<QImage> readAsStored();

private:
    bool recognise(QIODevice &device, Formats formats);
    bool openDrawing(QIODevice &device);
    std::optional<qint64> decodedBytes() const;

    QByteArray m_drawing;
    QBuffer m_buffer;
    std::optional<EndingAtErrors> m_tiff;
    QImageReader m_reader;
};

} // namespace corvane
