#include "core/quick_actions.h"

#include "core/drag_writer.h"
#include "core/feedback.h"
#include "platform/file_url.h"
#include "platform/regular_file.h"

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

QString dataUriOf(const QByteArray &bytes, const QString &mediaType)
{
    const QString type
        = mediaType.isEmpty() ? QStringLiteral("application/octet-stream") : mediaType;
    return QStringLiteral("data:") + type + QStringLiteral(";base64,")
        + QString::fromLatin1(bytes.toBase64());
}

struct DataUri {
    std::optional<QString> operator()(const DropItem::File &file) const
    {
        const auto bytes = regular_file::contents(file_url::nativePath(file.url),
                                                  QuickActions::dataUriLimit - 1);
        if (!bytes)
            return std::nullopt;
        const QString extension = file_url::pathExtension(file.url);
        return dataUriOf(*bytes, UTType::forFilenameExtension(extension).preferredMimeType());
    }
    std::optional<QString> operator()(const DropItem::ImageBytes &image) const
    {
        return dataUriOf(image.data, image.type.preferredMimeType());
    }
    std::optional<QString> operator()(const DropItem::Text &text) const
    {
        return dataUriOf(text.string.toUtf8(), QStringLiteral("text/plain"));
    }
    std::optional<QString> operator()(const DropItem::Link &) const { return std::nullopt; }
};

} // namespace

QuickActions::QuickActions(GeneralPasteboard &pasteboard, const Feedback &feedback)
    : m_pasteboard(pasteboard)
    , m_feedback(feedback)
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
    PasteboardContents contents;
    contents.writers.reserve(static_cast<std::size_t>(items.size()));
    for (const DropItem &item : items)
        contents.writers.push_back(DragWriter::pasteboardWriter(item));
    m_pasteboard.write(contents);
    m_feedback.show(QString::number(items.size()) + QStringLiteral(" items copied"));
}

void QuickActions::copy(const DropItem &item, bool asDataUri)
{
    if (const auto uri = asDataUri ? dataUri(item) : std::nullopt) {
        m_pasteboard.write({{}, uri});
        m_feedback.show(QStringLiteral("Data URI copied"));
        return;
    }
    const Copied copied = std::visit(CopiedPayload(), item.payload());
    m_pasteboard.write({{DragWriter::pasteboardWriter(item)}, copied.string});
    m_feedback.show(copied.message);
}

std::optional<QString> QuickActions::dataUri(const DropItem &item)
{
    return std::visit(DataUri(), item.payload());
}

} // namespace corvane
