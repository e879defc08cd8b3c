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
/// Reading a drop never waits. A picture that has to be converted or written becomes an item that
/// is still being made. Of a file behind a network only the name is read; the rest is asked for
/// later. The characters of a large text are counted later.
class PasteboardIngest {
public:
    PasteboardIngest(ScratchSpool &spool, const PictureItems &pictures,
                     const FileLocality &locality, RemoteDescriptions &remoteDescriptions,
                     RemotePictures &remotePictures, TextDescriptions &textDescriptions);

    /// The MIME names that the shelf takes drops of.
    static QStringList acceptedTypes();

    /// Whether a drag that enters can be taken. Reads addresses only; of pictures and text it is
    /// enough that their types are offered, so that nothing large is fetched before the drop.
    static bool canRead(Pasteboard &pasteboard);

    /// Whether a drag that offers these types can be judged only by its addresses, since it offers
    /// neither a picture nor text.
    static bool needsAddresses(const QStringList &types);

    /// Whether a web address becomes a link.
    static bool isLink(const QUrl &url);

    /// A place in the spool where the source of a drag may write the file that it promises under
    /// `name`, which is not trusted; none when there is no safe place.
    std::optional<QUrl> placeForPromisedFile(const QString &name) const;

    /// The items of one drop: files, else a picture, else a link, else text; perhaps none.
    QList<DropItem> readAll(Pasteboard &pasteboard) const;

    /// The item of one file on disk. A TIFF on a local disk becomes an item that is still being
    /// made, if there is a spool.
    DropItem fileItem(const QUrl &url) const;
    /// The same for many, in their order.
    QList<DropItem> fileItems(const QList<QUrl> &urls) const;
    DropItem textItem(const QString &text) const;

private:
    DropItem fileItem(const QUrl &url, const FileLocality::Inspection &inspection) const;
    std::optional<DropItem> promisedFileItem(Pasteboard &pasteboard) const;
    std::optional<DropItem> imageItem(Pasteboard &pasteboard) const;
    std::optional<DropItem> textItem(Pasteboard &pasteboard) const;

    /// Of more the oldest is forgotten: sources may promise files and never write them.
    static constexpr std::size_t mostPromised = 1'000;

    ScratchSpool &m_spool;
    /// Names that were given to sources and whose files have not arrived. They are kept because a
    /// source may write at any time, even after its drop was given up, and until then no file on
    /// disk shows that the name is taken.
    mutable std::vector<std::shared_ptr<SpoolPlace>> m_promised;
    const PictureItems &m_pictures;
    const FileLocality &m_locality;
    RemoteDescriptions &m_remoteDescriptions;
    RemotePictures &m_remotePictures;
    TextDescriptions &m_textDescriptions;
};

} // namespace corvane
