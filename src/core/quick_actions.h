#pragma once

#include "core/drop_item.h"

#include <QList>

#include <memory>

namespace corvane {

class DataUris;
struct Feedback;
class GeneralPasteboard;

/// Puts items on the clipboard and says what it did. All references must outlive it.
class QuickActions {
public:
    QuickActions(GeneralPasteboard &pasteboard, const Feedback &feedback, DataUris &dataUris);

    void copy(const QList<DropItem> &items);
    /// A data URI is there a little later, unless something else was copied meanwhile. What makes
    /// none is copied as it is.
    void copy(const DropItem &item, bool asDataUri);

private:
    void copyAsItIs(const DropItem &item);

    GeneralPasteboard &m_pasteboard;
    const Feedback &m_feedback;
    DataUris &m_dataUris;
    /// Of the latest copy: one that is still being made gives way to it.
    std::shared_ptr<const DropItem> m_latest;
};

} // namespace corvane
