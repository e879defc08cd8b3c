#include "core/quick_actions.h"

#include "core/data_uris.h"
#include "core/drag_writer.h"
#include "core/feedback.h"
#include "platform/file_url.h"
#include "platform/pasteboard_writer.h"

#include <QStringList>

namespace corvane {

namespace {

/// What one item puts on the clipboard, and what the user is told.
struct Copied {
    std::optional<QString> string;
    QString message;
};

struct CopiedPayload {
    Copied operator()(const DropItem::File &file) const
    {
        return {QString::fromUtf8(file_url::nativePath(file.url)), QStringLiteral("Path copied")};
    }
    Copied operator()(const DropItem::ImageBytes &) const
    {
        return {std::nullopt, QStringLiteral("Image copied")};
    }
    Copied operator()(const DropItem::Text &text) const
    {
        return {text.string, QStringLiteral("Text copied")};
    }
    Copied operator()(const DropItem::Link &link) const
    {
        return {link.url.toString(QUrl::FullyEncoded), QStringLiteral("Link copied")};
    }
};

/// How many of them are on the clipboard once they were written: of several pictures of one type
/// only the first.
qsizetype countThatArrives(const QList<DropItem> &items)
{
    QStringList pictureTypes;
    qsizetype left = 0;
    for (const DropItem &item : items) {
        const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload());
        if (!image)
            continue;
        const QString type = image->type.identifier();
        if (pictureTypes.contains(type))
            ++left;
        else
            pictureTypes << type;
    }
    return items.size() - left;
}

} // namespace

QuickActions::QuickActions(GeneralPasteboard &pasteboard, const Feedback &feedback,
                           DataUris &dataUris)
    : m_pasteboard(pasteboard)
    , m_feedback(feedback)
    , m_dataUris(dataUris)
{
}

void QuickActions::copy(const QList<DropItem> &items)
{
    if (items.isEmpty())
        return;
    if (items.size() == 1) {
        copy(items.constFirst(), false);
        return;
    }
    m_latest.reset();
    PasteboardContents contents;
    contents.writers.reserve(static_cast<std::size_t>(items.size()));
    for (const DropItem &item : items)
        contents.writers.push_back(DragWriter::pasteboardWriter(item));
    m_pasteboard.write(contents);
    m_feedback.show(QString::number(countThatArrives(items)) + QStringLiteral(" items copied"));
}

void QuickActions::copy(const DropItem &item, bool asDataUri)
{
    m_latest = std::make_shared<const DropItem>(item);
    if (!asDataUri) {
        copyAsItIs(item);
        return;
    }
    const auto latest = std::weak_ptr(m_latest);
    m_dataUris.make(item, [this, latest](const std::optional<QString> &uri) {
        const auto wanted = latest.lock();
        if (!wanted)
            return;
        if (!uri) {
            copyAsItIs(*wanted);
            return;
        }
        m_pasteboard.write({{}, uri});
        m_feedback.show(QStringLiteral("Data URI copied"));
    });
}

void QuickActions::copyAsItIs(const DropItem &item)
{
    const Copied copied = std::visit(CopiedPayload(), item.payload());
    m_pasteboard.write({{DragWriter::pasteboardWriter(item)}, copied.string});
    m_feedback.show(copied.message);
}

} // namespace corvane
