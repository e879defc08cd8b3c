#pragma once

#include "core/drop_item.h"
#include "platform/system/file_locality.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <memory>
#include <optional>
#include <vector>

namespace corvane {

class Pasteboard;
class PictureItems;
class RemoteDescriptions;
class RemotePictures;
class ScratchSpool;
class SpoolPlace;
class TextDescriptions;

/// Turns what was dropped into items. The references must outlive it.
///
/// A drop waits for nothing: a picture that is to be converted or written comes as an item that is
/// still being made; of a file behind a network only the name is looked at, and the rest asked for
/// later; a large text is counted later.
class PasteboardIngest {
public:
    PasteboardIngest(ScratchSpool &spool, const PictureItems &pictures,
                     const FileLocality &locality, RemoteDescriptions &remoteDescriptions,
                     RemotePictures &remotePictures, TextDescriptions &textDescriptions);

    /// The MIME names that the shelf takes drops of.
    static QStringList acceptedTypes();

    /// Whether a drag that enters has something for us. Reads address lists; of pictures and text
    /// it is enough that they are offered, so that nothing large is fetched before the drop.
    static bool canRead(Pasteboard &pasteboard);

    /// Whether `canRead` depends on the addresses of a drag that offers these types.
    static bool needsAddresses(const QStringList &types);

    /// Where a source may write the file that it promises under that name, a stranger's text; none
    /// when there is no safe place.
    std::optional<QUrl> placeForPromisedFile(const QString &name) const;

    /// The items of one drop: files, else a picture, else a link, else text; perhaps none.
    QList<DropItem> readAll(Pasteboard &pasteboard) const;

    DropItem fileItem(const QUrl &url) const;

private:
    DropItem fileItem(const QUrl &url, const FileLocality::Inspection &inspection) const;
    std::optional<DropItem> promisedFileItem(Pasteboard &pasteboard) const;
    std::optional<DropItem> imageItem(Pasteboard &pasteboard) const;
    std::optional<DropItem> textItem(Pasteboard &pasteboard) const;

    static constexpr std::size_t mostPromised = 1'000;

    ScratchSpool &m_spool;
    /// Kept until the file has arrived: a source writes when it likes, also after it was given up,
    /// and until it does no file tells that the name is taken.
    mutable std::vector<std::shared_ptr<SpoolPlace>> m_promised;
    const PictureItems &m_pictures;
    const FileLocality &m_locality;
    RemoteDescriptions &m_remoteDescriptions;
    RemotePictures &m_remotePictures;
    TextDescriptions &m_textDescriptions;
};

} // namespace corvane
