#pragma once

#include "core/drop_item.h"
#include "core/spool_loans.h"

#include <QList>

#include <memory>

namespace corvane {

class DataUris;
struct Feedback;
class Clipboard;
class ItemPreparation;
struct PasteboardContents;
class SavedPictures;

/// Puts items on the clipboard and shows a message about it. All references must outlive it. Main
/// thread only.
///
/// What is not ready at once (items that are still being made, pictures that are saved to files
/// first, data URIs) is put there later, unless something else was copied meanwhile, here or by
/// another program. An item that is removed after it was copied is made ready all the same, and its
/// file stays, so that it can be pasted.
class QuickActions {
public:
    QuickActions(Clipboard &pasteboard, const Feedback &feedback, DataUris &dataUris,
                 ItemPreparation &preparation, SavedPictures &pictures);

    /// Copies all of them. A clipboard can hold only one picture of each type, so two or more
    /// pictures that are held in memory are saved and copied as files. The message counts what was
    /// copied.
    void copy(const QList<DropItem> &items);
    /// Copies one item, as a data URI if asked to; an item that has none is copied as it is.
    void copy(const DropItem &item, bool asDataUri);

private:
    /// A copy that is not done yet.
    struct Copy {
        /// The clipboard's change count from when it was asked for.
        qint64 changeCount = 0;
        SpoolLoans::Loan loan;
    };
    using Latest = std::weak_ptr<const Copy>;
    Latest begin(const QList<DropItem> &items);
    /// Whether it is the latest copy of all; ends it otherwise.
    bool isStillWanted(const Latest &latest);
    void write(const PasteboardContents &contents, const QList<DropItem> &items);
    void copyReady(const QList<DropItem> &items, const Latest &latest);
    void copyAsDataUri(const DropItem &item, const Latest &latest);
    void copyAsItIs(const DropItem &item);
    void writeSeveral(const QList<DropItem> &items, qsizetype count);

    Clipboard &m_pasteboard;
    const Feedback &m_feedback;
    DataUris &m_dataUris;
    ItemPreparation &m_preparation;
    SavedPictures &m_pictures;
    /// The last copy asked for. Replacing it makes an earlier one, which holds it weakly, stop.
    std::shared_ptr<const Copy> m_latest;
};

} // namespace corvane
