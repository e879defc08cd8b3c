#include "core/picture_items.h"

#include "core/byte_count.h"
#include "core/image_converter.h"
#include "core/item_description.h"
#include "core/item_preparation.h"
#include "core/scratch_spool.h"
#include "core/shown_numbers.h"
#include "core/spool_place.h"
#include "platform/pictures/image_codec.h"
#include "platform/system/file_url.h"

#include <QCoreApplication>

#include <functional>
#include <memory>

namespace corvane {

namespace {

/// The name of a file that is made, in every language alike.
const QString basename = QStringLiteral("Image");

QString isBeingConverted()
{
    return QCoreApplication::translate("ItemTexts", "Converting to PNG…");
}

QString extensionOf(const UTType &type)
{
    const QString extension = type.preferredFilenameExtension();
    return extension.isEmpty() ? QStringLiteral("png") : extension;
}

QString kindOf(const UTType &type)
{
    const QString extension = type.preferredFilenameExtension();
    return (extension.isEmpty() ? QStringLiteral("image") : extension).toUpper();
}

QString kindAndSize(const QByteArray &imageData, const UTType &type)
{
    return kindOf(type) + item_description::separator() + formatByteCount(imageData.size());
}

DropItem fileItem(const QUrl &url, bool isSpooled)
{
    return {DropItem::File{url}, file_url::lastPathComponent(url), PictureItems::describe(url),
            isSpooled};
}

DropItem inMemory(const QByteArray &data, const UTType &type, const QString &description)
{
    return {DropItem::ImageBytes{data, type}, QCoreApplication::translate("ItemTexts", "Image"),
            description, false};
}

using Place = std::shared_ptr<SpoolPlace>;

/// Makes the item of picture bytes on another thread: as a PNG, as the file that they are, or in
/// memory where neither can be written.
struct MakeOfBytes {
    DropItem operator()() const
    {
        if (converted && converter.transcode(data, UTType::png(), *converted))
            return fileItem(converted->url(), true);
        const QString description = PictureItems::describe(data, type, codec);
        if (!asItIs->write(data))
            return inMemory(data, type, description);
        return {DropItem::File{.url = asItIs->url(), .isOfPicture = true},
                file_url::lastPathComponent(asItIs->url()), description, true};
    }

    QByteArray data;
    UTType type;
    /// The place for a PNG; null unless the bytes are a TIFF.
    Place converted;
    Place asItIs;
    const ImageConverter &converter;
    const ImageCodec &codec;
};

} // namespace

PictureItems::PictureItems(ScratchSpool &spool, const ImageConverter &converter,
                           const ImageCodec &codec, ItemPreparation &preparation)
    : m_spool(spool)
    , m_converter(converter)
    , m_codec(codec)
    , m_preparation(preparation)
{
}

std::optional<DropItem> PictureItems::ofTiffFile(const QUrl &url) const
{
    return converted(url, false);
}

std::optional<DropItem> PictureItems::ofSpooledTiff(const QUrl &url) const
{
    return converted(url, true);
}

std::optional<DropItem> PictureItems::converted(const QUrl &url, bool isSpooled) const
{
    const Place place = m_spool.keepPlace(file_url::stem(url), extensionOf(UTType::png()));
    if (!place)
        return std::nullopt;
    const DropItem item
        = DropItem::beingMade(DropItem::File{place->url()},
                              file_url::lastPathComponent(place->url()), isBeingConverted(), url);
    const auto make = [&converter = m_converter, url, isSpooled, place] {
        const bool isMade = converter.transcode(url, UTType::png(), *place);
        return isMade ? fileItem(place->url(), true) : fileItem(url, isSpooled);
    };
    const auto discardSource = [&spool = m_spool, url](const std::optional<DropItem> &made) {
        const auto *file = made ? std::get_if<DropItem::File>(&made->payload()) : nullptr;
        if (!file || file->url != url)
            spool.discard(url);
    };
    ItemPreparation::Job job{item, {place}, make, nullptr};
    if (isSpooled)
        job.onEnd = discardSource;
    return m_preparation.begin(std::move(job));
}

std::shared_ptr<SpoolPlace>
PictureItems::convertFetched(const DropItem &item, const QByteArray &data,
                             const std::function<bool()> &isWanted,
                             const std::function<void()> &whenDone) const
{
    const auto *file = std::get_if<DropItem::File>(&item.payload());
    Place place
        = file ? m_spool.keepPlace(file_url::stem(file->url), extensionOf(UTType::png())) : nullptr;
    if (!place)
        return nullptr;
    const auto make = [&converter = m_converter, data, item, place] {
        if (converter.transcode(data, UTType::png(), *place))
            return fileItem(place->url(), true);
        place->giveUp();
        return item;
    };
    const auto end
        = [&spool = m_spool, place, isWanted, whenDone](const std::optional<DropItem> &made) {
              if (made && !isWanted())
                  spool.discard(place->url());
              whenDone();
          };
    m_preparation.begin({item, {place}, make, end});
    return place;
}

DropItem PictureItems::ofBytes(const QByteArray &data, const UTType &type) const
{
    const QString extension = extensionOf(type);
    const Place asItIs = m_spool.keepPlace(basename, extension);
    if (!asItIs)
        return inMemory(data, type, kindAndSize(data, type));
    const Place png
        = type.isTiff() ? m_spool.keepPlace(basename, extensionOf(UTType::png())) : nullptr;
    const QUrl &url = png ? png->url() : asItIs->url();
    const DropItem item
        = DropItem::beingMade(DropItem::File{url}, file_url::lastPathComponent(url),
                              png ? isBeingConverted() : kindAndSize(data, type), {});
    ItemPreparation::Job job{item,
                             {png ? png : asItIs},
                             MakeOfBytes{data, type, png, asItIs, m_converter, m_codec},
                             nullptr,
                             DropItem::ImageBytes{data, type}};
    if (png)
        job.places.push_back(asItIs);
    return m_preparation.begin(std::move(job));
}

QString PictureItems::describe(const QUrl &url)
{
    const item_description::FileName name(url);
    return item_description::ofFile(name, FileVersion::at(name.nativePath));
}

QString PictureItems::describe(const QByteArray &imageData, const UTType &type,
                               const ImageCodec &codec)
{
    if (const auto size = codec.pixelSize(imageData))
        return shownPixels(*size) + item_description::separator() + kindOf(type);
    return kindAndSize(imageData, type);
}

} // namespace corvane
