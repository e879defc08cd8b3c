#pragma once

#include <QBuffer>
#include <QImageReader>

#include <optional>

class QIODevice;

namespace corvane {

/// A stranger's picture, ready to be decoded. The format is decided by the contents and only
/// formats with a signature are read: the others see a picture in any bytes. Compressed drawings
/// are refused, since nothing bounds what they expand to, and drawings are read without the files
/// that they refer to. One thread at a time.
class PictureReader {
public:
    /// False when the bytes are no picture that is read. The device must outlive the reader.
    bool open(QIODevice &device);

    QImageReader &reader() { return m_reader; }
    /// A drawing that has no pixels of its own.
    bool isVector() const;
    /// Whether the decoded pixels stay below the limit. A size that the format does not tell before
    /// decoding is held by the allocation limit instead.
    bool fits() const;
    /// The picture with what was set on the reader, upright, as `Format_ARGB32_Premultiplied` or
    /// `Format_RGB32`.
    std::optional<QImage> read();
    /// The same in the format that its decoder gives it: no bit of a channel is dropped, and
    /// colours are not multiplied with their alpha.
    std::optional<QImage> readAsStored();

private:
    bool openDrawing(QIODevice &device);

    QByteArray m_drawing;
    QBuffer m_buffer;
    QImageReader m_reader;
};

} // namespace corvane
