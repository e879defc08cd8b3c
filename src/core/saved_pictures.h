#pragma once

#include "core/drop_item.h"
#include "core/spool_loans.h"
#include "platform/base/lifetime.h"

#include <QByteArray>
#include <QList>
#include <QUuid>

#include <functional>
#include <map>

namespace corvane {

class ItemPreparation;
class ScratchSpool;

/// The files in the spool that other programs are given. Pictures that are held in memory are saved
/// to such files for copies and drags of several items, of which programs take only files.
///
/// A picture is saved once, on another thread. As long as its item is on the shelf the file is kept
/// and used again, also after the drag or copy that it was made for: another program may read it
/// later.
///
/// All references must outlive it. Main thread only.
class SavedPictures {
public:
    SavedPictures(ScratchSpool &spool, ItemPreparation &preparation);
    SavedPictures(const SavedPictures &) = delete;
    SavedPictures &operator=(const SavedPictures &) = delete;
    ~SavedPictures();

    /// The picture as an item with a file and an id of its own. Until the file is written the item
    /// is still being made; if that fails it becomes the picture in memory again. Items that are no
    /// pictures in memory are returned unchanged, and so are all where there is no spool.
    DropItem asFile(const DropItem &item);
    /// The same for many; calls back once all files are written, also those of items that are
    /// removed meanwhile.
    void asFiles(const QList<DropItem> &items,
                 const std::function<void(const QList<DropItem> &files)> &callback);

    /// To be called before another program is told of these items. As long as the loan lives, their
    /// files in the spool are not deleted, even if an item is removed, and what is still being made
    /// is finished.
    [[nodiscard]] SpoolLoans::Loan lend(const QList<DropItem> &items) const;
    /// To be called when another program was told of these items: their files in the spool are kept
    /// until the program ends.
    void giveAway(const QList<DropItem> &items) const;

    /// To be called when an item has left the shelf: its file is forgotten, and deleted with
    /// `deletingFile`. Otherwise the file stays, for the program that was given it.
    void itemLeft(const QUuid &id, bool deletingFile);

private:
    struct Saved {
        /// The bytes that were saved. `known` compares buffers, not bytes; this reference keeps the
        /// buffer from being freed, so that its memory is not reused for another picture.
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
