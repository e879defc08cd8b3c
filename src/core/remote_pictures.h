#pragma once

#include "core/drop_item.h"
#include "platform/base/lifetime.h"

#include <QUuid>

#include <deque>
#include <functional>
#include <memory>

namespace corvane {

class PictureItems;
class RemoteFiles;
class SpoolPlace;

/// Converts TIFF files that lie behind a network to PNG. One file is fetched after the other, so
/// that no more than one waits in memory. Until an item is converted, or where that fails, it stays
/// a TIFF. The references must outlive it. Main thread only.
class RemotePictures {
public:
    /// In bytes of the file. Larger ones stay TIFFs.
    static constexpr qint64 maximumBytes = 160LL * 1024 * 1024;

    RemotePictures(RemoteFiles &files, const PictureItems &pictures);
    RemotePictures(const RemotePictures &) = delete;
    RemotePictures &operator=(const RemotePictures &) = delete;
    ~RemotePictures();

    /// Asked whether the item is still on the shelf: before a file that had to wait is fetched, and
    /// before it is converted. Where this is empty all items are wanted.
    std::function<bool(const QUuid &item)> isWanted;

    /// Queues the item, whose payload must be a file; reading begins later, on another thread.
    void convert(const DropItem &item);
    /// To be called when an item has left the shelf: ends its conversion if that is going on.
    void itemLeft(const QUuid &id) const;

private:
    bool wants(const QUuid &item) const { return !isWanted || isWanted(item); }
    void fetchNext();
    void fetched(const DropItem &item, const std::optional<QByteArray> &data);

    RemoteFiles &m_files;
    const PictureItems &m_pictures;
    std::deque<DropItem> m_waiting;
    bool m_isBusy = false;
    /// What is being converted.
    struct Current {
        QUuid id;
        std::weak_ptr<SpoolPlace> place;
    };
    Current m_current;
    Lifetime m_lifetime;
};

} // namespace corvane
