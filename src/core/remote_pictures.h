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

/// Converts TIFF files that lie behind a network, as far as their servers hand them over: one after
/// the other, so that no more than one waits in memory. Their items are what they are until then.
/// The references must outlive it. Main thread only.
class RemotePictures {
public:
    /// Larger files stay what they are.
    static constexpr qint64 maximumBytes = 160LL * 1024 * 1024;

    RemotePictures(RemoteFiles &files, const PictureItems &pictures);
    RemotePictures(const RemotePictures &) = delete;
    RemotePictures &operator=(const RemotePictures &) = delete;
    ~RemotePictures();

    /// Whether the item is on the shelf: what nobody wants any more is neither fetched, after those
    /// before it, nor converted. Without it all are wanted.
    std::function<bool(const QUuid &item)> isWanted;

    /// Nothing is read inside this call, nor waited for.
    void convert(const DropItem &item);
    /// An item has left the shelf: nobody needs to go on converting it.
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
