#pragma once

#include "core/drop_item.h"

#include <QList>
#include <QString>

#include <optional>

namespace corvane {

struct Feedback;
class GeneralPasteboard;

/// Puts items on the clipboard and says what it did. Both references must outlive it.
class QuickActions {
public:
    /// A file of this many bytes or more makes no data URI.
    static constexpr qint64 dataUriLimit = 8'388'608;

    QuickActions(GeneralPasteboard &pasteboard, const Feedback &feedback);

    void copy(const QList<DropItem> &items);
    void copy(const DropItem &item, bool asDataUri);

private:
    static std::optional<QString> dataUri(const DropItem &item);

    GeneralPasteboard &m_pasteboard;
    const Feedback &m_feedback;
};

} // namespace corvane
