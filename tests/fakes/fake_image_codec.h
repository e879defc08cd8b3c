#pragma once

#include "platform/pictures/image_codec.h"
#include "platform/system/file_descriptor.h"

#include <QFile>
#include <QHash>

#include <algorithm>
#include <atomic>
#include <functional>

namespace corvane::test {

/// A codec for pictures that a test registers by their bytes (`teach`). An encoded picture reads
/// "image/png 3x2".
class FakeImageCodec : public ImageCodec {
public:
    using ImageCodec::fileThumbnail;
    using ImageCodec::thumbnail;

    std::optional<QSize> pixelSize(const QByteArray &data) const override
    {
        const auto found = sizes.constFind(data);
        return found == sizes.constEnd() ? std::nullopt : std::optional(*found);
    }
    std::optional<QImage> thumbnail(const QByteArray &data, int maximumPixels,
                                    DecodingAttempt &attempt) const override
    {
        using Outcome = DecodingAttempt::Outcome;
        formats << attempt.formats;
        if (slow.contains(data) && attempt.patience == DecodingAttempt::Patience::Brief) {
            attempt.outcome = Outcome::TooSlow;
            return std::nullopt;
        }
        if (unavailable.contains(data)) {
            attempt.outcome = Outcome::Interrupted;
            return std::nullopt;
        }
        auto size = pixelSize(data);
        const Outcome failure = bombs.contains(data) ? Outcome::OverBounds : Outcome::Unreadable;
        attempt.outcome = size ? Outcome::Made : failure;
        if (!size)
            return std::nullopt;
        if (std::max(size->width(), size->height()) > maximumPixels)
            size->scale(maximumPixels, maximumPixels, Qt::KeepAspectRatio);
        return picture(*size);
    }
    std::optional<QImage> fileThumbnail(const QUrl &url, int maximumPixels,
                                        DecodingAttempt &attempt) const override
    {
        return thumbnail(read(url), maximumPixels, attempt);
    }
    bool transcode(const QByteArray &data, const UTType &type, const FileDescriptor &target,
                   Cancellation &cancellation) const override
    {
        ++decodings;
        if (onTranscode)
            onTranscode(cancellation);
        const auto size = pixelSize(data);
        const auto bytes = size ? encode(picture(*size), type) : std::nullopt;
        return bytes && target.write(*bytes);
    }
    bool transcodeFile(const QUrl &url, const UTType &type, const FileDescriptor &target,
                       Cancellation &cancellation) const override
    {
        return transcode(read(url), type, target, cancellation);
    }
    std::optional<QByteArray> encode(const QImage &image, const UTType &type) const override
    {
        if (refusesToEncode)
            return std::nullopt;
        const QString text = QStringLiteral("%1 %2x%3");
        return text.arg(type.identifier()).arg(image.width()).arg(image.height()).toUtf8();
    }

    /// From now on these bytes are a picture of that size.
    void teach(const QByteArray &data, QSize size) { sizes.insert(data, size); }

    QHash<QByteArray, QSize> sizes;
    /// Bytes that need longer than a brief attempt, and those that break the bounds.
    QByteArrayList slow;
    QByteArrayList bombs;
    /// Bytes for which nobody is there who could decode them.
    QByteArrayList unavailable;
    /// What each thumbnail might be made of.
    mutable QList<DecodingAttempt::Formats> formats;
    bool refusesToEncode = false;
    /// Called in the middle of a conversion.
    std::function<void(Cancellation &cancellation)> onTranscode;
    /// How often a whole picture was decoded.
    mutable std::atomic<int> decodings = 0;

private:
    static QImage picture(QSize size)
    {
        QImage image(size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::red);
        return image;
    }
    static QByteArray read(const QUrl &url)
    {
        QFile file(url.toLocalFile());
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }
};

} // namespace corvane::test
