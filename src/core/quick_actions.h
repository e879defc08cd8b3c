#pragma once

#include "core/drop_item.h"

#include <QList>

#include <memory>

namespace corvane {

class DataUris;
struct Feedback;
class GeneralPasteboard;
class SavedPictures;

/// Puts items on the clipboard and says what it did. All references must outlive it.
class QuickActions {
public:
    QuickActions(GeneralPasteboard &pasteboard, const Feedback &feedback, DataUris &dataUris,
                 SavedPictures &pictures);

    /// A clipboard holds one picture of a type: of several that are held in memory it is given
    /// files, once these are written, unless something else was copied meanwhile. The message
    /// counts what is there.
    void copy(const QList<DropItem> &items);
    /// A data URI is there a little later, unless something else was copied meanwhile. What makes
    /// none is copied as it is.
    void copy(const DropItem &item, bool asDataUri);

private:
    struct Copy { };
    std::weak_ptr<const Copy> begin();
    void copyAsItIs(const DropItem &item);
    void writeSeveral(const QList<DropItem> &items, qsizetype count);

    GeneralPasteboard &m_pasteboard;
    const Feedback &m_feedback;
    DataUris &m_dataUris;
    SavedPictures &m_pictures;
    /// One that is still being made gives way to it.
    std::shared_ptr<const Copy> m_latest;
};

} // namespace corvane
