#include "core/kept_items.h"

#include "core/item_description.h"
#include "core/item_preparation.h"
#include "core/pasteboard_ingest.h"
#include "core/picture_items.h"
#include "core/scratch_spool.h"
#include "core/settings.h"
#include "core/shelf_store.h"
#include "core/spool_place.h"
#include "platform/base/work_queue.h"
#include "platform/pictures/image_codec.h"
#include "platform/system/file_url.h"
#include "platform/system/private_folder.h"
#include "platform/system/regular_file.h"

#include <QSet>
#include <QtDebug>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane {

namespace {

using kept_record::Item;
using Line = kept_record::Saved::Line;

QUrl addressOf(const kept_record::Link &link)
{
    return QUrl::fromEncoded(link.address);
}

bool isFileIn(const KeptFolder &folder, const DropItem &item)
{
    const auto *file = std::get_if<DropItem::File>(&item.payload());
    return file && folder.contains(file_url::nativePath(file->url));
}

QSet<QByteArray> namesIn(const QList<Item> &items)
{
    QSet<QByteArray> names;
    for (const Item &item : items) {
        if (const auto *saved = std::get_if<kept_record::Saved>(&item))
            names.insert(saved->name);
    }
    return names;
}

/// Not on the main thread.
QString lineOf(const QUrl &url, Line line, const ImageCodec &codec)
{
    const item_description::FileName name(url);
    const auto bytes = line == Line::PixelsAndKind
        ? regular_file::contents(name.nativePath, ImageCodec::maximumDecodedBytes)
        : std::nullopt;
    return bytes
        ? PictureItems::describe(*bytes, UTType::forFilenameExtension(name.extension), codec)
        : PictureItems::describe(url);
}

/// Whether what is on the shelf alone may be written into the folder now.
enum class Files { AsTheyAre, Written };

} // namespace

/// Takes down one item after the other, and puts into the folder what is on the shelf alone.
struct KeptItems::Keeper {
    /// Takes down those items that are not yet; `files` says whether those that need a file, too.
    void add(const QList<DropItem> &items, Files files)
    {
        forms.resize(static_cast<std::size_t>(items.size()));
        for (std::size_t i = 0; i < forms.size() && count < kept_record::mostItems; ++i) {
            if (forms[i])
                continue;
            auto form = formOf(items[static_cast<qsizetype>(i)], files);
            const qint64 size = form ? kept_record::sizeOf(*form) : 0;
            if (!form || size > room)
                continue;
            room -= size;
            ++count;
            forms[i] = std::move(form);
        }
    }
    bool commit() const
    {
        QList<Item> kept;
        kept.reserve(count);
        for (const auto &form : forms) {
            if (form)
                kept << *form;
        }
        return context.folder.commit(kept_record::encode(kept), namesIn(kept));
    }

    /// None if the item cannot be kept, or not yet.
    std::optional<Item> formOf(const DropItem &item, Files files)
    {
        writing = files;
        if (const auto bytes = context.preparation.bytesOf(item))
            return saved(*bytes, item.title());
        // What is still being made from a file is made from it again, later.
        const auto present = item.presentForm();
        if (!present)
            return std::nullopt;
        return std::visit([&](const auto &payload) { return of(payload, *present); },
                          present->payload());
    }

    std::optional<Item> of(const DropItem::File &file, const DropItem & /*item*/) const
    {
        // Only the path's text is looked at: a disk may not answer.
        const QByteArray path = file_url::nativePath(file.url);
        const bool isKeptHere = context.folder.contains(path);
        if (!isKeptHere && !path.startsWith(spoolFolder))
            return kept_record::File{path};
        if (isKeptHere)
            return keptHere(path);
        if (writing == Files::AsTheyAre)
            return std::nullopt;
        const QString name = file_url::lastPathComponent(path);
        const auto added
            = context.folder.add(path, file_url::pathExtension(name).toUtf8(), isTimeLeft);
        if (!added)
            return std::nullopt;
        return kept_record::Saved{added->name, added->size, name,
                                  file.isOfPicture ? Line::PixelsAndKind : Line::KindAndSize};
    }
    /// It stays as it is: no second name and no copy, which could fail.
    std::optional<Item> keptHere(const QByteArray &path) const
    {
        const auto found = restored.constFind(path.mid(path.lastIndexOf('/') + 1));
        if (found == restored.constEnd() || !context.folder.has({found->name, found->size}))
            return std::nullopt;
        return *found;
    }
    std::optional<Item> of(const DropItem::ImageBytes &image, const DropItem &item) const
    {
        return saved(image, item.title());
    }
    static std::optional<Item> of(const DropItem::Text &text, const DropItem & /*item*/)
    {
        return kept_record::Text{text.string};
    }
    static std::optional<Item> of(const DropItem::Link &link, const DropItem &item)
    {
        return kept_record::Link{link.url.toEncoded(), item.title(), item.subtitle()};
    }

    /// A picture in memory becomes a file, named by its type.
    std::optional<Item> saved(const DropItem::ImageBytes &image, const QString &title) const
    {
        if (writing == Files::AsTheyAre || !isTimeLeft())
            return std::nullopt;
        const QString extension = image.type.preferredFilenameExtension();
        const auto added = context.folder.addBytes(image.data, extension.toUtf8());
        if (!added)
            return std::nullopt;
        const item_description::FileName name(title);
        const bool isNamed = extension.isEmpty() || name.extension == extension;
        return kept_record::Saved{added->name, added->size,
                                  isNamed ? title : name.stem() + QLatin1Char('.') + extension,
                                  Line::PixelsAndKind};
    }

    const Context &context;
    const QHash<QByteArray, kept_record::Saved> &restored;
    const std::function<bool()> &isTimeLeft;
    QByteArray spoolFolder = file_url::nativePath(context.spool.directory()) + '/';
    /// One for each item on the shelf.
    std::vector<std::optional<Item>> forms = {};
    qsizetype count = 0;
    Files writing = Files::AsTheyAre;
    qint64 room = kept_record::mostBytes - kept_record::sizeOfEmpty();
};

KeptItems::KeptItems(const Context &context)
    : m_context(context)
{
}

KeptItems::~KeptItems() = default;

void KeptItems::restore()
{
    if (!m_context.folder.hold()) {
        if (m_context.folder.isThere())
            qWarning("[Corvane] What was kept of the shelf is not read: its folder is open to "
                     "others, or in use.");
        return;
    }
    if (!m_context.folder.hasRecord()) {
        m_context.folder.sweep({});
        return;
    }
    const auto record = m_context.folder.record(kept_record::mostBytes);
    auto kept = record ? kept_record::decode(*record) : std::nullopt;
    if (!kept) {
        qWarning("[Corvane] What was kept of the shelf cannot be read.");
        // Without being held it is neither replaced nor deleted.
        if (record && kept_record::isOfAnotherVersion(*record))
            m_context.folder.release();
        return;
    }
    m_context.folder.sweep(namesIn(*kept));
    const auto missing = kept->removeIf([this](const Item &item) { return !isWhole(item); });
    if (missing > 0)
        qWarning("[Corvane] Items that are missing from what was kept of the shelf: %lld.",
                 static_cast<long long>(missing));
    for (const Item &item : std::as_const(*kept)) {
        if (const auto *saved = std::get_if<kept_record::Saved>(&item))
            m_restored.insert(saved->name, *saved);
    }
    const QList<DropItem> items = itemsOf(*kept);
    m_context.store.accept(items);
    m_context.preparation.whenReady(
        items, m_lifetime.guard([this, kept = *kept](const QList<DropItem> &ready) {
            spooled(kept, ready);
        }));
}

bool KeptItems::isWhole(const Item &kept) const
{
    if (const auto *file = std::get_if<kept_record::File>(&kept))
        return file->path.startsWith('/') && !file->path.contains('\0');
    if (const auto *saved = std::get_if<kept_record::Saved>(&kept))
        return m_context.folder.has({saved->name, saved->size});
    if (const auto *link = std::get_if<kept_record::Link>(&kept))
        return PasteboardIngest::isLink(addressOf(*link));
    return true;
}

QList<DropItem> KeptItems::itemsOf(const QList<Item> &kept) const
{
    QList<QUrl> files;
    for (const Item &item : kept) {
        if (const auto *file = std::get_if<kept_record::File>(&item))
            files << file_url::fromNativePath(file->path);
    }
    // Together, as when they are dropped: there may be thousands.
    const QList<DropItem> fileItems = m_context.ingest.fileItems(files);
    auto nextFile = fileItems.begin();
    QList<DropItem> items;
    items.reserve(kept.size());
    for (const Item &item : kept) {
        if (std::holds_alternative<kept_record::File>(item))
            items << *nextFile++;
        else if (const auto *saved = std::get_if<kept_record::Saved>(&item))
            items << itemOf(*saved);
        else if (const auto *text = std::get_if<kept_record::Text>(&item))
            items << m_context.ingest.textItem(text->string);
        else if (const auto *link = std::get_if<kept_record::Link>(&item))
            items << DropItem(DropItem::Link{addressOf(*link)}, link->title, link->subtitle, false);
    }
    return items;
}

/// Its file is copied into the spool. Where it cannot be, the item is the file where it was kept.
DropItem KeptItems::itemOf(const kept_record::Saved &saved) const
{
    const QByteArray path = m_context.folder.pathOf(saved.name);
    const QUrl url = file_url::fromNativePath(path);
    const item_description::FileName name(saved.title);
    const QString line = item_description::ofFile(
        name, FileVersion{.path = path, .kind = FileVersion::Kind::Regular, .size = saved.size});
    DropItem asItIs(DropItem::File{url}, saved.title, line, false);
    const auto place = saved.size <= largestSpooled
        ? m_context.spool.keepPlace(name.stem(), name.extension)
        : nullptr;
    if (!place)
        return asItIs;
    const QString title = file_url::lastPathComponent(place->url());
    const auto make = [&codec = m_context.codec, place, path, title, asItIs, saved] {
        const bool isCopied = place->write(
            [&](const FileDescriptor &file) { return KeptFolder::copy(path, saved.size, file); });
        if (!isCopied)
            return asItIs;
        const bool isOfPicture = saved.line == Line::PixelsAndKind;
        return DropItem(DropItem::File{.url = place->url(), .isOfPicture = isOfPicture}, title,
                        lineOf(place->url(), saved.line, codec), true);
    };
    return m_context.preparation.begin(
        {DropItem::beingMade(DropItem::File{place->url()}, title, line, url),
         {place},
         make,
         nullptr});
}

/// Everything that was kept has a new home, or was removed meanwhile: it is deleted, but for what
/// is still an item in the folder, which stays there, alone.
void KeptItems::spooled(const QList<Item> &kept, const QList<DropItem> &items)
{
    QSet<QByteArray> stay;
    for (const DropItem &item : items) {
        if (isFileIn(m_context.folder, item))
            stay.insert(file_url::nativePath(std::get<DropItem::File>(item.payload()).url));
    }
    QList<Item> left;
    std::vector<QByteArray> paths;
    for (const Item &item : kept) {
        const auto *saved = std::get_if<kept_record::Saved>(&item);
        if (saved && stay.contains(m_context.folder.pathOf(saved->name)))
            left << item;
        else if (saved)
            paths.push_back(m_context.folder.pathOf(saved->name));
    }
    if (left.isEmpty())
        m_context.folder.forget();
    else if (!m_context.folder.rewrite(kept_record::encode(left)))
        return;
    m_context.workQueue.run([folder = m_context.folder.path(), paths] {
        private_folder::sync(folder);
        std::ranges::for_each(paths, KeptFolder::remove);
    });
}

/// Whether there is a folder for a new set, and no set in it that was never on this shelf: another
/// process may have kept it since.
bool KeptItems::mayReplace()
{
    KeptFolder &folder = m_context.folder;
    return folder.isHeld() || (folder.makeAndHold() && !folder.hasRecord());
}

void KeptItems::keep(const std::function<bool()> &isTimeLeft)
{
    KeptFolder &folder = m_context.folder;
    const QList<DropItem> &items = m_context.store.items();
    if (!m_context.settings.keepItems() || items.isEmpty()) {
        if (folder.isHeld())
            folder.empty();
        folder.release();
        return;
    }
    Keeper keeper{m_context, m_restored, isTimeLeft};
    bool isKept = mayReplace();
    qsizetype count = 0;
    const auto commit = [&](Files files) {
        keeper.add(items, files);
        isKept = isKept && keeper.commit();
        if (isKept)
            count = keeper.count;
        return isKept;
    };
    // What needs no time comes first: the process may be ended while files are written.
    if (isKept && commit(Files::AsTheyAre) && count < items.size()) {
        commit(Files::Written);
        isKept = true;
    }
    folder.release();
    if (!isKept)
        qWarning("[Corvane] The items on the shelf could not be kept.");
    else if (count < items.size())
        qWarning("[Corvane] Items on the shelf that could not be kept: %lld.",
                 static_cast<long long>(items.size() - count));
}

} // namespace corvane
