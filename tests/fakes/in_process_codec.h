#pragma once

#include "decoder/picture_decoding.h"
#include "decoder/picture_writer.h"
#include "platform/pictures/image_codec.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"

#include <QBuffer>
#include <QFile>

namespace corvane::test {

/// What the decoder does, without its process: for tests of those who have real pictures decoded.
class InProcessCodec : public ImageCodec {
    static picture_decoding::Formats formats(const DecodingAttempt &attempt)
    {
        return static_cast<picture_decoding::Formats>(attempt.formats);
    }
    template<class Function>
    static auto inMemory(const QByteArray &data, Function function)
    {
        QBuffer buffer;
        buffer.setData(data);
        buffer.open(QIODevice::ReadOnly);
        return function(buffer);
    }
    template<class Function>
    static std::optional<QImage> inFile(const QUrl &url, Function function)
    {
        QFile file;
        if (!regular_file::open(file, file_url::nativePath(url)))
            return std::nullopt;
        return function(file);
    }
    static bool write(const std::optional<QImage> &image, const UTType &type,
                      const FileDescriptor &target)
    {
        const auto bytes = image ? picture_writer::encoded(*image, type) : std::nullopt;
        return bytes && target.write(*bytes);
    }

public:
    using ImageCodec::fileThumbnail;
    using ImageCodec::thumbnail;

    InProcessCodec() { picture_decoding::setLimits(); }

    std::optional<QSize> pixelSize(const QByteArray &data) const override
    {
        return inMemory(data,
                        [](QIODevice &device) { return picture_decoding::pixelSize(device); });
    }
    std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels,
                                    DecodingAttempt &attempt) const override
    {
        return inMemory(data, [&](QIODevice &device) {
            return picture_decoding::thumbnail(device, maximumPixels, formats(attempt));
        });
    }
    std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels,
                                        DecodingAttempt &attempt) const override
    {
        return inFile(url, [&](QIODevice &device) {
            return picture_decoding::thumbnail(device, maximumPixels, formats(attempt));
        });
    }
    std::optional<QImage> decode(const QByteArray &data) const
    {
        return inMemory(data, [](QIODevice &device) { return picture_decoding::whole(device); });
    }
    std::optional<QImage> decodeFile(const QUrl &url) const
    {
        return inFile(url, [](QIODevice &device) { return picture_decoding::whole(device); });
    }
    bool transcode(const QByteArray &data, const UTType &type, const FileDescriptor &target,
                   Cancellation & /*cancellation*/) const override
    {
        return write(decode(data), type, target);
    }
    bool transcodeFile(const QUrl &url, const UTType &type, const FileDescriptor &target,
                       Cancellation & /*cancellation*/) const override
    {
        return write(decodeFile(url), type, target);
    }
    std::optional<QByteArray> encode(const QImage &image, const UTType &type) const override
    {
        return picture_writer::encoded(image, type);
    }
};

} // namespace corvane::test
