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

/// Puts items on the clipboard and says what it did. All references must outlive it.
///
/// What takes its time (items that are still being made, pictures that are saved first, data URIs)
/// is put there once it is ready, unless something else was copied meanwhile, here or in another
/// program.
class QuickActions {
public:
    QuickActions(Clipboard &pasteboard, const Feedback &feedback, DataUris &dataUris,
                 ItemPreparation &preparation, SavedPictures &pictures);

    /// A clipboard holds one picture of a type: of several that are held in memory it is given
    /// files. Without those that are removed before they are ready; the message counts what is
    /// there.
    void copy(const QList<DropItem> &items);
    /// What makes no data URI is copied as it is.
    void copy(const DropItem &item, bool asDataUri);

private:
    /// Which change of the clipboard was the last when it was asked for.
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
    /// One that is still being made gives way to it.
    std::shared_ptr<const Copy> m_latest;
};

} // namespace corvane
