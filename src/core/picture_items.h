#pragma once

#include "core/drop_item.h"

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

namespace corvane {

class ImageCodec;
class ImageConverter;
class ItemPreparation;
class ScratchSpool;
class SpoolPlace;

/// Makes the items of dropped pictures for which the shelf writes a file: a PNG from a TIFF, and a
/// file for picture bytes that came without one. The files are made on other threads; until then
/// the items stand on the shelf under their final names.
///
/// All references must outlive it; codec and converter must also outlive the work on other threads.
class PictureItems {
public:
    PictureItems(ScratchSpool &spool, const ImageConverter &converter, const ImageCodec &codec,
                 ItemPreparation &preparation);

    /// An item that becomes a PNG of the TIFF file, or that TIFF file where it cannot be converted.
    /// None when there is no spool.
    std::optional<DropItem> ofTiffFile(const QUrl &url) const;
    /// The same for a TIFF in the spool. It is deleted once the item has become a PNG or was
    /// removed.
    std::optional<DropItem> ofSpooledTiff(const QUrl &url) const;
    /// Converts `data`, the contents of the item's TIFF file, which was fetched over a network. The
    /// item becomes the PNG, unless it cannot be converted, or `isWanted` says no when it is done.
    /// Calls `whenDone` then, on the main thread. Returns the place of the PNG; giving it up ends
    /// the work. Null, and nothing is called, when there is no spool.
    std::shared_ptr<SpoolPlace> convertFetched(const DropItem &item, const QByteArray &data,
                                               const std::function<bool()> &isWanted,
                                               const std::function<void()> &whenDone) const;
    /// The item of picture bytes that came without a file. Without a spool it keeps them in memory.
    DropItem ofBytes(const QByteArray &data, const UTType &type) const;

    /// The line below the name of a local file, for example "PNG · 2 KB". Asks the disk.
    static QString describe(const QUrl &url);
    /// The same for bytes, "640 × 480 · PNG". Reads the picture's header; kind and size in bytes
    /// where that has no pixel size.
    static QString describe(const QByteArray &imageData, const UTType &type,
                            const ImageCodec &codec);

private:
    std::optional<DropItem> converted(const QUrl &url, bool isSpooled) const;

    ScratchSpool &m_spool;
    const ImageConverter &m_converter;
    const ImageCodec &m_codec;
    ItemPreparation &m_preparation;
};

} // namespace corvane
