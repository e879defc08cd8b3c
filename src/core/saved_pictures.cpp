#include "core/saved_pictures.h"

#include "core/item_preparation.h"
#include "core/scratch_spool.h"
#include "core/spool_place.h"
#include "platform/system/file_url.h"

#include <sys/stat.h>

namespace corvane {

namespace {

const QUrl &urlOf(const DropItem &file)
{
    return std::get<DropItem::File>(file.payload()).url;
}

bool exists(const QUrl &url)
{
    struct stat status = {};
    return ::lstat(file_url::nativePath(url).constData(), &status) == 0;
}

/// Of those items that are files of the shelf's own, or about to be.
QList<QUrl> spooledFiles(const QList<DropItem> &items)
{
    QList<QUrl> files;
    for (const DropItem &item : items) {
        if (item.isSpooled() && std::holds_alternative<DropItem::File>(item.payload()))
            files << urlOf(item);
    }
    return files;
}

QString extensionOf(const UTType &type)
{
    const QString extension = type.preferredFilenameExtension();
    return extension.isEmpty() ? QStringLiteral("png") : extension;
}

} // namespace

SavedPictures::SavedPictures(ScratchSpool &spool, ItemPreparation &preparation)
    : m_spool(spool)
    , m_preparation(preparation)
{
}

SavedPictures::~SavedPictures() = default;

const DropItem *SavedPictures::known(const QUuid &id, const QByteArray &bytes) const
{
    const auto saved = m_saved.find(id);
    if (saved == m_saved.end() || !saved->second.bytes.isSharedWith(bytes))
        return nullptr;
    const DropItem &file = saved->second.file;
    // The program that took the file may have moved it away.
    return file.isBeingMade() || exists(urlOf(file)) ? &file : nullptr;
}

DropItem SavedPictures::asFile(const DropItem &item)
{
    const auto *image = std::get_if<DropItem::ImageBytes>(&item.payload());
    if (!image)
        return item;
    const QUuid id = item.id();
    if (const DropItem *file = known(id, image->data))
        return *file;
    const auto place = m_spool.keepPlace(item.title(), extensionOf(image->type));
    if (!place)
        return item;
    const DropItem file = DropItem::beingMade(DropItem::File{place->url()},
                                              file_url::lastPathComponent(place->url()),
                                              item.subtitle(), std::nullopt);
    const auto make = [place, item, bytes = image->data] {
        if (!place->write(bytes))
            return item;
        return DropItem(DropItem::File{.url = place->url(), .isOfPicture = true},
                        file_url::lastPathComponent(place->url()), item.subtitle(), true);
    };
    const auto end
        = m_lifetime.guard([this, id, fileId = file.id()](const std::optional<DropItem> &made) {
              ended(id, fileId, made);
          });
    m_saved.insert_or_assign(id, Saved{image->data, file});
    return m_preparation.begin({file, {place}, make, end});
}

void SavedPictures::asFiles(const QList<DropItem> &items,
                            const std::function<void(const QList<DropItem> &files)> &callback)
{
    QList<DropItem> files;
    files.reserve(items.size());
    for (const DropItem &item : items)
        files << asFile(item);
    m_preparation.whenReady(
        files, [loan = lend(files), callback](const QList<DropItem> &ready) { callback(ready); });
}

SpoolLoans::Loan SavedPictures::lend(const QList<DropItem> &items) const
{
    return m_spool.lend(spooledFiles(items));
}

void SavedPictures::giveAway(const QList<DropItem> &items) const
{
    m_spool.giveAway(spooledFiles(items));
}

void SavedPictures::ended(const QUuid &id, const QUuid &fileId, const std::optional<DropItem> &made)
{
    const auto saved = m_saved.find(id);
    // The item may have left, or been saved anew.
    if (saved == m_saved.end() || saved->second.file.id() != fileId)
        return;
    if (made && std::holds_alternative<DropItem::File>(made->payload()))
        saved->second.file = *made;
    else
        m_saved.erase(saved);
}

void SavedPictures::itemLeft(const QUuid &id, bool deletingFile)
{
    const auto saved = m_saved.extract(id);
    if (saved && deletingFile)
        m_spool.discard(urlOf(saved.mapped().file));
}

} // namespace corvane
