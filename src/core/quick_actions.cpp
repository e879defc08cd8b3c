#include "core/quick_actions.h"

#include "core/data_uris.h"
#include "core/drag_writer.h"
#include "core/feedback.h"
#include "core/item_preparation.h"
#include "core/saved_pictures.h"
#include "platform/pasteboard/clipboard.h"
#include "platform/pasteboard/pasteboard_writer.h"
#include "platform/system/file_url.h"

#include <QStringList>

#include <algorithm>

namespace corvane {

namespace {

/// What one item puts on the clipboard, and what the user is told.
struct Copied {
    std::optional<QString> string;
    Message::Kind message;
};

struct CopiedPayload {
    Copied operator()(const DropItem::File &file) const
    {
        return {QString::fromUtf8(file_url::nativePath(file.url)), Message::Kind::PathCopied};
    }
    Copied operator()(const DropItem::ImageBytes &) const
    {
        return {std::nullopt, Message::Kind::ImageCopied};
    }
    Copied operator()(const DropItem::Text &text) const
    {
        return {text.string, Message::Kind::TextCopied};
    }
    Copied operator()(const DropItem::Link &link) const
    {
        return {link.url.toString(QUrl::FullyEncoded), Message::Kind::LinkCopied};
    }
};

bool isInMemory(const DropItem &item)
{
    return std::holds_alternative<DropItem::ImageBytes>(item.payload());
}

/// How many of the items a program gets when it pastes, for the message. Pictures that could not be
/// saved are lost beside other items, which programs take instead; where there are only pictures,
/// the first of each type is pasted.
qsizetype countThatArrives(const QList<DropItem> &items)
{
    QStringList pictureTypes;
    qsizetype others = 0;
    for (const DropItem &item : items) {
        if (const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload()))
            pictureTypes << image->type.identifier();
        else
            ++others;
    }
    pictureTypes.removeDuplicates();
    return others > 0 ? others : pictureTypes.size();
}

} // namespace

QuickActions::QuickActions(Clipboard &pasteboard, const Feedback &feedback, DataUris &dataUris,
                           ItemPreparation &preparation, SavedPictures &pictures)
    : m_pasteboard(pasteboard)
    , m_feedback(feedback)
    , m_dataUris(dataUris)
    , m_preparation(preparation)
    , m_pictures(pictures)
{
}

void QuickActions::copy(const QList<DropItem> &items)
{
    if (items.isEmpty())
        return;
    m_preparation.whenReady(items, [this, latest = begin(items)](const QList<DropItem> &ready) {
        if (isStillWanted(latest))
            copyReady(ready, latest);
    });
}

void QuickActions::copyReady(const QList<DropItem> &items, const Latest &latest)
{
    if (items.isEmpty()) {
        // None of them could be made.
        m_latest.reset();
        return;
    }
    if (items.size() == 1) {
        copyAsItIs(items.constFirst());
        return;
    }
    if (std::count_if(items.begin(), items.end(), isInMemory) < 2) {
        writeSeveral(items, items.size());
        return;
    }
    m_pictures.asFiles(items, [this, latest](const QList<DropItem> &files) {
        if (!isStillWanted(latest))
            return;
        if (files.isEmpty())
            m_latest.reset();
        else
            writeSeveral(files, countThatArrives(files));
    });
}

void QuickActions::writeSeveral(const QList<DropItem> &items, qsizetype count)
{
    PasteboardContents contents;
    contents.writers.reserve(static_cast<std::size_t>(items.size()));
    for (const DropItem &item : items)
        contents.writers.push_back(DragWriter::pasteboardWriter(item));
    write(contents, items);
    m_feedback.show({Message::Kind::ItemsCopied, count});
}

void QuickActions::copy(const DropItem &item, bool asDataUri)
{
    m_preparation.whenReady(
        item, [this, asDataUri, latest = begin({item})](const std::optional<DropItem> &ready) {
            if (!isStillWanted(latest))
                return;
            if (!ready)
                m_latest.reset();
            else if (asDataUri)
                copyAsDataUri(*ready, latest);
            else
                copyAsItIs(*ready);
        });
}

void QuickActions::copyAsDataUri(const DropItem &item, const Latest &latest)
{
    m_dataUris.make(item, [this, latest, item](const std::optional<QString> &uri) {
        if (!isStillWanted(latest))
            return;
        if (!uri) {
            copyAsItIs(item);
            return;
        }
        write({{}, uri}, {});
        m_feedback.show({Message::Kind::DataUriCopied});
    });
}

QuickActions::Latest QuickActions::begin(const QList<DropItem> &items)
{
    m_latest
        = std::make_shared<const Copy>(Copy{m_pasteboard.changeCount(), m_pictures.lend(items)});
    return m_latest;
}

bool QuickActions::isStillWanted(const Latest &latest)
{
    const auto copy = latest.lock();
    if (!copy)
        return false;
    const bool isLatest = copy->changeCount == m_pasteboard.changeCount();
    if (!isLatest)
        m_latest.reset();
    return isLatest;
}

void QuickActions::write(const PasteboardContents &contents, const QList<DropItem> &items)
{
    m_pictures.giveAway(items);
    m_pasteboard.write(contents);
    m_latest.reset();
}

void QuickActions::copyAsItIs(const DropItem &item)
{
    const Copied copied = std::visit(CopiedPayload(), item.payload());
    write({{DragWriter::pasteboardWriter(item)}, copied.string}, {item});
    m_feedback.show({copied.message});
}

} // namespace corvane
