#pragma once

#include "platform/freedesktop/decoding/decoder_pool.h"
#include "platform/pictures/image_codec.h"

namespace corvane {

/// Has pictures decoded by the decoders of a pool, which must outlive it. Encodes itself.
class DecoderImageCodec : public ImageCodec {
public:
    /// In milliseconds, for each request.
    static constexpr int briefTime = 500;
    static constexpr int thumbnailTime = 3'000;
    static constexpr int conversionTime = 60'000;

    using ImageCodec::fileThumbnail;
    using ImageCodec::thumbnail;

    explicit DecoderImageCodec(DecoderPool &pool);

    std::optional<QSize> pixelSize(const QByteArray &data) const override;
    std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels,
                                    DecodingAttempt &attempt) const override;
    std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels,
                                        DecodingAttempt &attempt) const override;
    bool transcode(const QByteArray &data, const UTType &type, const FileDescriptor &target,
                   Cancellation &cancellation) const override;
    bool transcodeFile(const QUrl &url, const UTType &type, const FileDescriptor &target,
                       Cancellation &cancellation) const override;
    std::optional<QByteArray> encode(const QImage &image, const UTType &type) const override;

private:
    std::optional<QImage> thumbnailOf(const FileDescriptor &contents, int maximumPixels,
                                      DecodingAttempt &attempt) const;
    bool transcodeTo(const FileDescriptor &contents, const UTType &type,
                     const FileDescriptor &target, Cancellation &cancellation) const;

    DecoderPool &m_pool;
};

} // namespace corvane
