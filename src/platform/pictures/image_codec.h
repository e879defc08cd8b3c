#pragma once

#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QUrl>

#include <cstdint>
#include <optional>

namespace corvane {

class Cancellation;
class FileDescriptor;

/// One attempt at making a picture of contents that are not trusted: what may be spent on it, and
/// how it ended.
struct DecodingAttempt {
    enum class Formats : std::uint8_t {
        Any,
        /// Of a web page: PNG, JPEG, GIF, WebP and AVIF.
        Web,
        Png,
    };
    enum class Patience : std::uint8_t {
        /// Enough for nearly every picture: a slow one is to be tried again when nothing else
        /// waits.
        Brief,
        Full,
        /// The same, for what Brief was not enough for: never more than one of these at once.
        Alone,
    };
    enum class Outcome : std::uint8_t {
        Made,
        Unreadable,
        /// It needed more time or memory than it may have, or ended the process that decoded it.
        OverBounds,
        /// It needed more time or memory than with Patience::Brief.
        TooSlow,
        /// Cancelled, or nothing could be decoded just now. That says nothing about the contents.
        Interrupted,
    };

    Formats formats = Formats::Any;
    Patience patience = Patience::Full;
    /// May be null.
    Cancellation *cancellation = nullptr;
    /// Set by the codec.
    Outcome outcome = Outcome::Unreadable;
};

/// Decodes and encodes pictures. Any thread but the main one; waits. The bytes are not trusted: a
/// picture whose pixels need more than `maximumDecodedBytes` is not decoded, and broken bytes give
/// none.
class ImageCodec {
public:
    /// The most memory that the pixels of one decoded picture may take.
    static constexpr qint64 maximumDecodedBytes = 256LL * 1024 * 1024;
    /// The quality for lossy formats, 0 to 1.
    static constexpr double compressionQuality = 0.92;

    virtual ~ImageCodec() = default;

    /// The first picture's size in pixels as stored, without decoding it.
    virtual std::optional<QSize> pixelSize(const QByteArray &data) const = 0;
    /// The first picture, upright, scaled while decoding so that its longer side is at most
    /// `maximumPixels`. A smaller picture keeps its size.
    virtual std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels,
                                            DecodingAttempt &attempt) const = 0;
    virtual std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels,
                                                DecodingAttempt &attempt) const = 0;
    /// Writes the first picture, encoded anew, into an empty file that is open for writing: at full
    /// size, with all bits of its channels and the colours of translucent pixels as far as the type
    /// allows. False if that fails or is cancelled; then the file may hold anything.
    virtual bool transcode(const QByteArray &data, const UTType &type, const FileDescriptor &target,
                           Cancellation &cancellation) const = 0;
    virtual bool transcodeFile(const QUrl &url, const UTType &type, const FileDescriptor &target,
                               Cancellation &cancellation) const = 0;
    /// Encodes a picture of our own. None if the type cannot be written.
    virtual std::optional<QByteArray> encode(const QImage &image, const UTType &type) const = 0;

    /// The same without a wish that differs from the usual one.
    std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels) const
    {
        DecodingAttempt attempt;
        return thumbnail(data, maximumPixels, attempt);
    }
    std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels) const
    {
        DecodingAttempt attempt;
        return fileThumbnail(url, maximumPixels, attempt);
    }
};

} // namespace corvane
