// Loads thumbnails and link previews of accepted items. Results may come after the store is gone,
// so callbacks are guarded by its lifetime, and the item is found again by its id.

#include "core/link_preview_source.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "core/thumbnail_source.h"
#include "platform/web/shown_address.h"

#include <utility>
#include <vector>

namespace corvane {

template<typename Change>
void ShelfStore::change(const QUuid &id, PublicationPace pace, Change apply)
{
    const auto index = indexOf(id);
    if (!index)
        return;
    apply(m_items[*index]);
    publishItems(pace);
}

void ShelfStore::startLoading(const QList<DropItem> &items)
{
    const auto merge = m_lifetime.guard(
        [this](const QUuid &id, const std::optional<Image> &image) { mergeThumbnail(id, image); });
    std::vector<ThumbnailSource::File> files;
    const auto startFiles = [&] {
        if (!files.empty())
            m_thumbnails.generateForFiles(std::exchange(files, {}), merge);
    };
    for (const DropItem &item : items) {
        const QUuid id = item.id();
        // An item that is still being made has no file yet; `becomeReady` loads its thumbnail.
        if (item.isBeingMade())
            continue;
        if (const auto *file = std::get_if<DropItem::File>(&item.payload())) {
            files.push_back({id, file->url});
            continue;
        }
        // Thumbnails are asked for in the order of the items, so the files before this one go
        // first.
        startFiles();
        if (const auto *link = std::get_if<DropItem::Link>(&item.payload()))
            startLink(item, link->url);
        else if (const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload()))
            m_thumbnails.generateForImageData(
                id, image->data,
                [merge, id](const std::optional<Image> &picture) { merge(id, picture); });
    }
    startFiles();
}

void ShelfStore::startLink(const DropItem &item, const QUrl &url)
{
    if (!m_settings.linkPreviews())
        return;
    const QUuid id = item.id();
    m_linkPreviews.load(
        url, m_lifetime.guard([this, id] {
            return m_settings.linkPreviews() && indexOf(id).has_value();
        }),
        m_lifetime.guard([this, id, url](const std::optional<LinkPreview> &preview) {
            if (preview)
                mergeLinkPreview(id, url, *preview);
        }));
}

void ShelfStore::describe(const QUuid &id, const QString &subtitle)
{
    change(id, PublicationPace::Detail, [&](DropItem &item) { item.setSubtitle(subtitle); });
}

void ShelfStore::describeFile(const QUuid &id, const QString &subtitle, bool isFolder)
{
    change(id, PublicationPace::Detail, [&](DropItem &item) {
        item.setSubtitle(subtitle);
        item.setIsFolder(isFolder);
    });
}

void ShelfStore::becomeReady(const DropItem &made)
{
    const QUuid id = made.id();
    const Lifetime::Token life = m_lifetime.token();
    // At once: the user may drag or open the item next, and must get the new file.
    change(id, PublicationPace::AtOnce, [&](DropItem &item) { item.become(made); });
    if (!life.isOver() && indexOf(id))
        startLoading({made});
}

void ShelfStore::mergeThumbnail(const QUuid &id, const std::optional<Image> &thumbnail)
{
    if (thumbnail)
        change(id, PublicationPace::Detail, [&](DropItem &item) { item.setThumbnail(*thumbnail); });
}

void ShelfStore::mergeLinkPreview(const QUuid &id, const QUrl &url, const LinkPreview &preview)
{
    const Lifetime::Token life = m_lifetime.token();
    if (!preview.title.isEmpty()) {
        change(id, PublicationPace::Detail, [&](DropItem &item) { item.setTitle(preview.title); });
        if (life.isOver())
            return;
        const QString host = shownHost(url);
        const QString address = host.isEmpty() ? shownAddress(url) : host;
        const QString subtitle = preview.siteName.value_or(address);
        change(id, PublicationPace::Detail, [&](DropItem &item) { item.setSubtitle(subtitle); });
    }
    if (preview.image && !life.isOver())
        change(id, PublicationPace::Detail,
               [&](DropItem &item) { item.setThumbnail(*preview.image); });
}

} // namespace corvane
