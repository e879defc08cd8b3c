#include "core/drop_item.h"

#include <QRandomGenerator>
#include <QSharedData>

#include <array>
#include <cstring>
#include <utility>

namespace corvane {

namespace {

/// A random id. Not `QUuid::createUuid`, which asks the system each time: ids keep no secret, and a
/// drop may bring ten thousand items.
QUuid randomId()
{
    std::array<quint32, 4> words = {};
    QRandomGenerator::global()->fillRange(words.data(), static_cast<qsizetype>(words.size()));
    QUuid id;
    id.data1 = words[0];
    id.data2 = static_cast<ushort>(words[1] >> 16U);
    // The bits that mark a random UUID: version 4 and the RFC 4122 variant.
    id.data3 = static_cast<ushort>((words[1] & 0x0fffU) | 0x4000U);
    std::memcpy(&id.data4[0], &words[2], sizeof id.data4);
    id.data4[0] = static_cast<uchar>((id.data4[0] & 0x3fU) | 0x80U);
    return id;
}

} // namespace

struct DropItem::Data : QSharedData {
    QUuid id;
    Payload payload;
    QString title;
    QString subtitle;
    std::optional<Image> thumbnail;
    bool isSpooled = false;
    bool isBeingMade = false;
    std::optional<QUrl> original;
};

DropItem::DropItem(Payload payload, QString title, QString subtitle, bool isSpooled)
    : m_data(new Data)
{
    m_data->id = randomId();
    m_data->payload = std::move(payload);
    m_data->title = std::move(title);
    m_data->subtitle = std::move(subtitle);
    m_data->isSpooled = isSpooled;
}

DropItem DropItem::beingMade(File file, QString title, QString subtitle,
                             std::optional<QUrl> original)
{
    DropItem item(std::move(file), std::move(title), std::move(subtitle), true);
    item.m_data->isBeingMade = true;
    item.m_data->original = std::move(original);
    return item;
}

DropItem::DropItem(const DropItem &) = default;
DropItem::DropItem(DropItem &&) noexcept = default;
DropItem &DropItem::operator=(const DropItem &) = default;
DropItem &DropItem::operator=(DropItem &&) noexcept = default;
DropItem::~DropItem() = default;

QUuid DropItem::id() const
{
    return m_data->id;
}

const DropItem::Payload &DropItem::payload() const
{
    return m_data->payload;
}

QString DropItem::title() const
{
    return m_data->title;
}

void DropItem::setTitle(const QString &title)
{
    m_data->title = title;
}

QString DropItem::subtitle() const
{
    return m_data->subtitle;
}

void DropItem::setSubtitle(const QString &subtitle)
{
    m_data->subtitle = subtitle;
}

void DropItem::setIsFolder(bool isFolder)
{
    if (auto *file = std::get_if<File>(&m_data->payload))
        file->isFolder = isFolder;
}

std::optional<Image> DropItem::thumbnail() const
{
    return m_data->thumbnail;
}

void DropItem::setThumbnail(const Image &thumbnail)
{
    m_data->thumbnail = thumbnail;
}

bool DropItem::isSpooled() const
{
    return m_data->isSpooled;
}

bool DropItem::isBeingMade() const
{
    return m_data->isBeingMade;
}

std::optional<QUrl> DropItem::original() const
{
    return m_data->original;
}

std::optional<DropItem> DropItem::presentForm() const
{
    if (!isBeingMade())
        return *this;
    if (!m_data->original)
        return std::nullopt;
    return DropItem(File{*m_data->original}, m_data->title, m_data->subtitle, false);
}

void DropItem::become(const DropItem &made)
{
    const Data &from = *made.m_data;
    Data &to = *m_data;
    to.payload = from.payload;
    to.title = from.title;
    to.subtitle = from.subtitle;
    to.isSpooled = from.isSpooled;
    to.isBeingMade = from.isBeingMade;
    to.original = from.original;
}

PhosphorIcon DropItem::glyph() const
{
    if (isBeingMade())
        return PhosphorIcon::Image;
    struct Chooser {
        PhosphorIcon operator()(const File &file) const
        {
            return file.isFolder ? PhosphorIcon::Folder : PhosphorIcon::File;
        }
        PhosphorIcon operator()(const ImageBytes &) const { return PhosphorIcon::Image; }
        PhosphorIcon operator()(const Text &) const { return PhosphorIcon::TextAlignLeft; }
        PhosphorIcon operator()(const Link &) const { return PhosphorIcon::Link; }
    };
    return std::visit(Chooser(), m_data->payload);
}

} // namespace corvane
