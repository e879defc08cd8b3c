#pragma once

#include "core/drop_item.h"

#include <QList>

#include <memory>

namespace corvane {

class DataUris;
struct Feedback;
class Clipboard;
class ItemPreparation;
class SavedPictures;

/// Puts items on the clipboard and shows a message about it. All references must outlive it. Main
/// thread only.
///
/// What is not ready at once (items that are still being made, pictures that are saved to files
/// first, data URIs) is put there later, unless something else was copied meanwhile, here or by
/// another program.
class QuickActions {
public:
    QuickActions(Clipboard &pasteboard, const Feedback &feedback, DataUris &dataUris,
                 ItemPreparation &preparation, SavedPictures &pictures);

    /// Copies all of them. A clipboard can hold only one picture of each type, so two or more
    /// pictures that are held in memory are saved and copied as files. Items that are removed
    /// before they are ready are left out, and the message counts the others.
    void copy(const QList<DropItem> &items);
    /// Copies one item, as a data URI if asked to; an item that has none is copied as it is.
    void copy(const DropItem &item, bool asDataUri);

private:
    /// A copy that is not done yet, with the clipboard's change count from when it was asked for.
    struct Copy {
        qint64 changeCount = 0;
    };
    using Latest = std::weak_ptr<const Copy>;
    Latest begin();
    bool isStillWanted(const Latest &latest) const;
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
