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

/// The items of dropped pictures whose files the shelf makes itself: of a TIFF a PNG, of bytes that
/// came without a file one that holds them. They are made beside the main thread, and until then
/// stand on the shelf under their final names. All references must outlive it, codec and converter
/// also the work.
class PictureItems {
public:
    PictureItems(ScratchSpool &spool, const ImageConverter &converter, const ImageCodec &codec,
                 ItemPreparation &preparation);

    /// A TIFF file becomes a PNG, or stays what it is where that cannot be done; none when there is
    /// no spool.
    std::optional<DropItem> ofTiffFile(const QUrl &url) const;
    /// The same for one that lies in the spool already, which goes once it is of no use any more.
    std::optional<DropItem> ofSpooledTiff(const QUrl &url) const;
    /// The contents of an item's TIFF file have been fetched: the item becomes a PNG of them,
    /// unless that cannot be done or `isWanted` says no in the end. Calls `whenDone` later. Gives
    /// the place of the PNG: giving that up ends the work. Null, and nothing is called, when there
    /// is no spool.
    std::shared_ptr<SpoolPlace> convertFetched(const DropItem &item, const QByteArray &data,
                                               const std::function<bool()> &isWanted,
                                               const std::function<void()> &whenDone) const;
    /// A picture without a file. Without a spool it stays in memory.
    DropItem ofBytes(const QByteArray &data, const UTType &type) const;

    /// A file of this machine's disks. Asks the disk.
    static QString describe(const QUrl &url);
    /// Reads the picture's beginning.
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
