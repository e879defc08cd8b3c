#include "core/pasteboard_ingest.h"

#include "core/item_description.h"
#include "core/picture_items.h"
#include "core/remote_descriptions.h"
#include "core/remote_pictures.h"
#include "core/scratch_spool.h"
#include "core/spool_place.h"
#include "core/text_descriptions.h"
#include "platform/pasteboard/pasteboard.h"
#include "platform/system/file_url.h"
#include "platform/web/shown_address.h"

#include <algorithm>
#include <optional>
#include <utility>

namespace corvane {

namespace {

/// All types under which programs offer plain text.
const QStringList plainTextTypes = {
    QStringLiteral("text/plain"),  QStringLiteral("text/plain;charset=utf-8"),
    QStringLiteral("UTF8_STRING"), QStringLiteral("STRING"),
    QStringLiteral("TEXT"),        QStringLiteral("text/unicode"),
};

bool isPlainText(const QString &type)
{
    return type.startsWith(QLatin1String("text/plain;"), Qt::CaseInsensitive)
        || plainTextTypes.contains(type, Qt::CaseInsensitive);
}

/// Only the first address is looked at: a web link that comes second does not count.
std::optional<QUrl> webLink(Pasteboard &pasteboard)
{
    const QList<QUrl> urls = pasteboard.urls();
    const bool isFirst = !urls.isEmpty() && PasteboardIngest::isLink(urls.constFirst());
    return isFirst ? std::optional(urls.constFirst()) : std::nullopt;
}

std::optional<DropItem> linkItem(Pasteboard &pasteboard)
{
    const auto url = webLink(pasteboard);
    if (!url)
        return std::nullopt;
    const QString address = shownAddress(*url);
    const QString path = url->path();
    const QString host = shownHost(*url);
    const bool isHomePage = path.isEmpty() || path == QLatin1String("/");
    return DropItem(DropItem::Link{*url}, isHomePage ? address : path,
                    host.isEmpty() ? address : host, false);
}

} // namespace

PasteboardIngest::PasteboardIngest(ScratchSpool &spool, const PictureItems &pictures,
                                   const FileLocality &locality,
                                   RemoteDescriptions &remoteDescriptions,
                                   RemotePictures &remotePictures,
                                   TextDescriptions &textDescriptions)
    : m_spool(spool)
    , m_pictures(pictures)
    , m_locality(locality)
    , m_remoteDescriptions(remoteDescriptions)
    , m_remotePictures(remotePictures)
    , m_textDescriptions(textDescriptions)
{
}

QStringList PasteboardIngest::acceptedTypes()
{
    // Rich text is never read. It is accepted because programs that offer it offer plain text as
    // well.
    return QStringList{QStringLiteral("text/uri-list"), UTType::png().identifier(),
                       UTType::tiff().identifier(), QStringLiteral("text/x-moz-url")}
    + plainTextTypes + QStringList{QStringLiteral("application/rtf"), QStringLiteral("text/rtf")};
}

bool PasteboardIngest::needsAddresses(const QStringList &types)
{
    return std::none_of(types.begin(), types.end(), [](const QString &type) {
        return type.compare(UTType::png().identifier(), Qt::CaseInsensitive) == 0
            || type.compare(UTType::tiff().identifier(), Qt::CaseInsensitive) == 0
            || isPlainText(type);
    });
}

bool PasteboardIngest::canRead(Pasteboard &pasteboard)
{
    return !needsAddresses(pasteboard.types()) || !pasteboard.fileUrls().isEmpty()
        || webLink(pasteboard);
}

bool PasteboardIngest::isLink(const QUrl &url)
{
    return url.scheme().startsWith(QLatin1String("http"));
}

std::optional<QUrl> PasteboardIngest::placeForPromisedFile(const QString &name) const
{
    const item_description::FileName wanted(name);
    auto place = m_spool.keepPlace(wanted.stem(), wanted.extension);
    if (!place)
        return std::nullopt;
    m_promised.push_back(std::move(place));
    if (m_promised.size() > mostPromised)
        m_promised.erase(m_promised.begin());
    return m_promised.back()->url();
}

QList<DropItem> PasteboardIngest::readAll(Pasteboard &pasteboard) const
{
    const QList<QUrl> files = pasteboard.fileUrls();
    if (!files.isEmpty())
        return fileItems(files);
    if (const auto saved = promisedFileItem(pasteboard))
        return {*saved};
    if (const auto image = imageItem(pasteboard))
        return {*image};
    if (const auto link = linkItem(pasteboard))
        return {*link};
    if (const auto text = textItem(pasteboard))
        return {*text};
    return {};
}

QList<DropItem> PasteboardIngest::fileItems(const QList<QUrl> &urls) const
{
    QList<QByteArray> paths;
    paths.reserve(urls.size());
    for (const QUrl &url : urls)
        paths << file_url::nativePath(url);
    const auto inspections = m_locality.inspect(paths);
    QList<DropItem> items;
    items.reserve(urls.size());
    for (qsizetype i = 0; i < urls.size(); ++i)
        items << fileItem(urls[i], inspections[static_cast<std::size_t>(i)]);
    return items;
}

DropItem PasteboardIngest::fileItem(const QUrl &url) const
{
    return fileItem(url, m_locality.inspect({file_url::nativePath(url)}).front());
}

DropItem PasteboardIngest::fileItem(const QUrl &url,
                                    const FileLocality::Inspection &inspection) const
{
    const item_description::FileName name(url);
    const bool isTiff = UTType::forFilenameExtension(name.extension).isTiff();
    if (isTiff && !inspection.isRemote) {
        if (const auto picture = m_pictures.ofTiffFile(url))
            return *picture;
    }
    const bool isFolder
        = inspection.version && inspection.version->kind == FileVersion::Kind::Folder;
    DropItem item(DropItem::File{url, isFolder}, name.whole,
                  item_description::ofFile(name, inspection.version), false);
    if (inspection.isRemote)
        m_remoteDescriptions.find(item.id(), name.nativePath);
    if (isTiff && inspection.isRemote)
        m_remotePictures.convert(item);
    return item;
}

/// The file that a source has written as promised. It comes before a picture's bytes because a
/// browser writes the original file there.
std::optional<DropItem> PasteboardIngest::promisedFileItem(Pasteboard &pasteboard) const
{
    const auto file = pasteboard.promisedFile();
    if (!file)
        return std::nullopt;
    // The file exists now, so its name no longer needs to be kept.
    std::erase_if(m_promised, [&](const auto &place) { return place->url() == *file; });
    if (!item_description::isRegularFile(*file)) {
        m_spool.discard(*file);
        return std::nullopt;
    }
    if (UTType::forFilenameExtension(item_description::FileName(*file).extension).isTiff()) {
        if (const auto picture = m_pictures.ofSpooledTiff(*file))
            return *picture;
    }
    m_spool.keepName(*file);
    return DropItem(DropItem::File{*file}, file_url::lastPathComponent(*file),
                    PictureItems::describe(*file), true);
}

std::optional<DropItem> PasteboardIngest::imageItem(Pasteboard &pasteboard) const
{
    UTType type = UTType::png();
    auto data = pasteboard.dataFor(type);
    if (!data || data->isEmpty()) {
        type = UTType::tiff();
        data = pasteboard.dataFor(type);
    }
    if (!data || data->isEmpty())
        return std::nullopt;
    return m_pictures.ofBytes(*data, type);
}

std::optional<DropItem> PasteboardIngest::textItem(Pasteboard &pasteboard) const
{
    const auto text = pasteboard.string();
    if (!text || QStringView(*text).trimmed().isEmpty())
        return std::nullopt;
    return textItem(*text);
}

DropItem PasteboardIngest::textItem(const QString &text) const
{
    DropItem item(DropItem::Text{text}, item_description::titleOfText(text),
                  TextDescriptions::atOnce(text), false);
    m_textDescriptions.find(item.id(), text);
    return item;
}

} // namespace corvane
