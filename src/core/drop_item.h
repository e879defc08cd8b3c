#pragma once

#include "core/phosphor_icon.h"
#include "platform/pictures/image.h"
#include "platform/system/ut_type.h"

#include <QByteArray>
#include <QSharedDataPointer>
#include <QString>
#include <QUrl>
#include <QUuid>

#include <optional>
#include <variant>

namespace corvane {

/// One thing held on the shelf.
///
/// A value: copies are independent, and cheap, since they share what neither has changed. Two items
/// are the same item exactly when their ids are equal.
class DropItem {
public:
    /// A file or folder on disk.
    struct File {
        QUrl url;
        /// As the disk said when the item was made.
        bool isFolder = false;
        /// The shelf wrote it of picture bytes: its second line says how many pixels they have.
        bool isOfPicture = false;
    };
    /// A picture held in memory.
    struct ImageBytes {
        QByteArray data;
        UTType type;
    };
    struct Text {
        QString string;
    };
    /// A web address.
    struct Link {
        QUrl url;
    };
    using Payload = std::variant<File, ImageBytes, Text, Link>;

    /// Makes a new item with a fresh random id and no thumbnail.
    DropItem(Payload payload, QString title, QString subtitle, bool isSpooled);
    /// A new item whose file `file`, in the spool, is still being made. `original` is the file that
    /// it is made from, to be previewed meanwhile; none if there is none.
    static DropItem beingMade(File file, QString title, QString subtitle,
                              std::optional<QUrl> original);
    DropItem(const DropItem &);
    DropItem(DropItem &&) noexcept;
    DropItem &operator=(const DropItem &);
    DropItem &operator=(DropItem &&) noexcept;
    ~DropItem();

    QUuid id() const;
    const Payload &payload() const;
    /// First line shown.
    QString title() const;
    void setTitle(const QString &title);
    /// Second line shown.
    QString subtitle() const;
    void setSubtitle(const QString &subtitle);
    /// What was found out later about a file; does nothing to other payloads.
    void setIsFolder(bool isFolder);
    std::optional<Image> thumbnail() const;
    void setThumbnail(const Image &thumbnail);
    /// The file lives in the scratch spool and belongs to the shelf.
    bool isSpooled() const;

    /// The payload's file is not there yet. Such an item can be selected, removed and dragged like
    /// any other; code that needs the file waits for it with (`ItemPreparation::whenReady`).
    bool isBeingMade() const;
    std::optional<QUrl> original() const;
    /// The item to preview now: this one or, while it is being made, one with the original file;
    /// none if there is no original.
    std::optional<DropItem> presentForm() const;
    /// Takes over payload, texts and `isSpooled` of `made`; id and thumbnail stay.
    void become(const DropItem &made);

    /// The icon drawn where there is no thumbnail. The disk is not asked again whether a file is a
    /// folder. What is still being made is shown as a picture.
    PhosphorIcon glyph() const;

private:
    struct Data;
    QSharedDataPointer<Data> m_data;
};

} // namespace corvane

Q_DECLARE_TYPEINFO(corvane::DropItem, Q_RELOCATABLE_TYPE);
