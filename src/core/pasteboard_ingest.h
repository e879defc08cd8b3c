#pragma once

#include "core/drop_item.h"
#include "platform/file_locality.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <optional>

namespace corvane {

class ImageCodec;
class ImageConverter;
class Pasteboard;
class RemoteDescriptions;
class ScratchSpool;

/// Turns what was dropped into items. The references must outlive it.
///
/// A drop does not wait for a server: of a file behind a network only the name is looked at, it is
/// kept as it is even if it is a TIFF picture, and the rest is asked for later.
class PasteboardIngest {
public:
    PasteboardIngest(ScratchSpool &spool, const ImageConverter &converter, const ImageCodec &codec,
                     const FileLocality &locality, RemoteDescriptions &remoteDescriptions);

    /// The MIME names that the shelf takes drops of.
    static QStringList acceptedTypes();

    /// Whether a drag that enters has something for us. Reads address lists; of pictures and text
    /// it is enough that they are offered, so that nothing large is fetched before the drop.
    static bool canRead(Pasteboard &pasteboard);

    /// The items of one drop: files, else a picture, else a link, else text; perhaps none.
    QList<DropItem> readAll(Pasteboard &pasteboard) const;

    DropItem fileItem(const QUrl &url) const;
    /// Of a file on this machine's disks.
    static QString describe(const QUrl &url);
    QString describe(const QByteArray &imageData, const UTType &type) const;

private:
    DropItem fileItem(const QUrl &url, const FileLocality::Inspection &inspection) const;
    DropItem spooledItem(const QUrl &url) const;
    std::optional<DropItem> promisedFileItem(Pasteboard &pasteboard) const;
    std::optional<DropItem> imageItem(Pasteboard &pasteboard) const;

    ScratchSpool &m_spool;
    const ImageConverter &m_converter;
    const ImageCodec &m_codec;
    const FileLocality &m_locality;
    RemoteDescriptions &m_remoteDescriptions;
};

} // namespace corvane
