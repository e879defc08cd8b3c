#include "core/remote_pictures.h"

#include "core/picture_items.h"
#include "core/spool_place.h"
#include "platform/system/file_url.h"
#include "platform/system/remote_files.h"

namespace corvane {

RemotePictures::RemotePictures(RemoteFiles &files, const PictureItems &pictures)
    : m_files(files)
    , m_pictures(pictures)
{
}

RemotePictures::~RemotePictures() = default;

void RemotePictures::convert(const DropItem &item)
{
    const bool isFirst = m_waiting.empty() && !m_isBusy;
    m_waiting.push_back(item);
    if (isFirst)
        fetchNext();
}

void RemotePictures::fetchNext()
{
    m_isBusy = !m_waiting.empty();
    if (!m_isBusy)
        return;
    const DropItem item = m_waiting.front();
    m_waiting.pop_front();
    m_files.read(file_url::nativePath(std::get<DropItem::File>(item.payload()).url), maximumBytes,
                 m_lifetime.guard(
                     [this, item](const std::optional<QByteArray> &data) { fetched(item, data); }));
}

void RemotePictures::fetched(const DropItem &item, const std::optional<QByteArray> &data)
{
    const auto goOn = m_lifetime.guard([this] {
        std::erase_if(m_waiting, [this](const DropItem &waiting) { return !wants(waiting.id()); });
        fetchNext();
    });
    const auto isStillWanted = m_lifetime.guard([this, id = item.id()] { return wants(id); });
    const auto place = data && isStillWanted()
        ? m_pictures.convertFetched(item, *data, isStillWanted, goOn)
        : nullptr;
    m_current = {item.id(), place};
    if (!place)
        goOn();
}

void RemotePictures::itemLeft(const QUuid &id) const
{
    if (const auto place = m_current.place.lock(); place && m_current.id == id)
        place->giveUp();
}

} // namespace corvane
