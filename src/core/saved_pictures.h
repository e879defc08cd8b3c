#pragma once

#include "core/drop_item.h"
#include "platform/base/lifetime.h"

#include <QByteArray>
#include <QList>
#include <QUuid>

#include <functional>
#include <map>

namespace corvane {

class ItemPreparation;
class ScratchSpool;

/// Files in the spool for pictures that are held in memory: of several things that are copied or
/// dragged at once programs take the files.
///
/// A picture is saved once, beside the main thread. Its file stays for the next time as long as the
/// item is on the shelf, whatever became of the drag or copy that it was made for: the clipboard,
/// or whoever took it, may read it later.
///
/// All references must outlive it. Main thread only.
class SavedPictures {
public:
    SavedPictures(ScratchSpool &spool, ItemPreparation &preparation);
    SavedPictures(const SavedPictures &) = delete;
    SavedPictures &operator=(const SavedPictures &) = delete;
    ~SavedPictures();

    /// A picture as a file, with an id of its own. Where it has to be written first it is still
    /// being made, and becomes the picture in memory again should that fail. What is no picture in
    /// memory comes as it is, and so does everything where there is no spool.
    DropItem asFile(const DropItem &item);
    /// The same for many, once all of them are written: without those that were removed meanwhile.
    void asFiles(const QList<DropItem> &items,
                 const std::function<void(const QList<DropItem> &files)> &callback);

    /// An item has left the shelf. Its file stays for whoever was given it, unless it is to go.
    void itemLeft(const QUuid &id, bool deletingFile);

private:
    struct Saved {
        /// What was saved; held, so that other bytes are never taken for these.
        QByteArray bytes;
        DropItem file;
    };
    const DropItem *known(const QUuid &id, const QByteArray &bytes) const;
    void ended(const QUuid &id, const QUuid &fileId, const std::optional<DropItem> &made);

    ScratchSpool &m_spool;
    ItemPreparation &m_preparation;
    /// By the ids of the items on the shelf.
    std::map<QUuid, Saved> m_saved;
    Lifetime m_lifetime;
};

} // namespace corvane
