#pragma once

#include "core/drop_item.h"
#include "core/kept_record.h"
#include "platform/base/lifetime.h"
#include "platform/system/kept_folder.h"

#include <QHash>
#include <QList>

#include <chrono>
#include <functional>
#include <optional>

namespace corvane {

class ImageCodec;
class ItemPreparation;
class PasteboardIngest;
class ScratchSpool;
class Settings;
class ShelfStore;
class WorkQueue;

/// Keeps what is on the shelf from the end of the program to its next start, if the user wants
/// that.
///
/// Of files and links the places are kept; pictures, and other files that are on the shelf alone,
/// go from the spool into a folder of the user's, and texts into its record. At the next start they
/// come back in their order, as if they were dropped: files are described anew, in the language of
/// that start, and what was kept becomes files of the spool again, made beside the main thread.
/// What was kept is deleted only once all of that is done; if the program ends before, it is kept
/// again.
///
/// All references must outlive it; the codec must also outlive the work on other threads. Main
/// thread only.
class KeptItems {
public:
    struct Context {
        const Settings &settings;
        KeptFolder &folder;
        ShelfStore &store;
        ScratchSpool &spool;
        const PasteboardIngest &ingest;
        const ImageCodec &codec;
        ItemPreparation &preparation;
        /// What was kept is deleted there.
        WorkQueue &workQueue;
    };
    /// For how long files are copied at the end: what is left then is not kept.
    static constexpr std::chrono::milliseconds patience{2'000};
    /// A larger file stays where it was kept, instead of being copied into the spool; so does one
    /// that cannot be copied.
    static constexpr qint64 largestSpooled = 1024LL * 1024 * 1024;

    explicit KeptItems(const Context &context);
    KeptItems(const KeptItems &) = delete;
    KeptItems &operator=(const KeptItems &) = delete;
    ~KeptItems();

    /// Puts on the shelf what was kept. It is there also if the setting was turned off meanwhile,
    /// and is then not kept any more.
    void restore();
    /// Keeps what is on the shelf, or deletes what was kept. To be called once, at the end, before
    /// the spool is deleted. What needs no file to be written is kept first, since the process may
    /// be ended any time; then files are copied as long as `isTimeLeft` says so.
    void keep(const std::function<bool()> &isTimeLeft);

private:
    struct Keeper;

    QList<DropItem> itemsOf(const QList<kept_record::Item> &kept) const;
    DropItem itemOf(const kept_record::Saved &saved) const;
    bool isWhole(const kept_record::Item &kept) const;
    void spooled(const QList<kept_record::Item> &kept, const QList<DropItem> &items);
    bool mayReplace();

    Context m_context;
    /// By their names in the folder.
    QHash<QByteArray, kept_record::Saved> m_restored;
    Lifetime m_lifetime;
};

} // namespace corvane
