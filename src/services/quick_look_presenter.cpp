#include "services/quick_look_presenter.h"

#include "core/display_text.h"
#include "core/drop_item.h"
#include "platform/base/checked_math.h"
#include "platform/base/main_queue.h"
#include "platform/base/work_queue.h"
#include "platform/system/file_url.h"
#include "platform/system/private_file.h"
#include "services/preview_scratch.h"

#include <unistd.h>

#include <algorithm>
#include <utility>
#include <variant>

namespace corvane {

namespace {

template<class... Functions>
struct Overloaded : Functions... {
    using Functions::operator()...;
};
template<class... Functions>
Overloaded(Functions...) -> Overloaded<Functions...>;

/// Extensions come from the MIME database, where users may put anything.
bool isSafe(const QString &extension)
{
    constexpr qsizetype maximumLength = 32;
    const auto isPlain = [](QChar character) {
        return character.unicode() < 0x80
            && (character.isLetterOrNumber() || QStringView(u".-_+").contains(character));
    };
    return !extension.isEmpty() && extension.size() <= maximumLength
        && !extension.startsWith(QLatin1Char('.')) && std::ranges::all_of(extension, isPlain);
}

QString extensionOf(const UTType &type)
{
    const QString extension = type.preferredFilenameExtension();
    return isSafe(extension) ? extension : QStringLiteral("png");
}

} // namespace

QuickLookPresenter::QuickLookPresenter(const Context &context, QByteArray temporaryDirectory)
    : m_context(context)
    , m_temporaryDirectory(std::move(temporaryDirectory))
{
}

QuickLookPresenter::~QuickLookPresenter()
{
    discardScratch();
}

void QuickLookPresenter::present(const DropItem &item)
{
    const auto url = resolveURL(item);
    if (!url)
        return;
    m_previewURL = url;
    m_title = item.title();
    if (m_context.panel.isVisible())
        m_context.panel.orderOut();
    else
        m_context.panel.makeKeyAndOrderFront();
}

std::optional<QString> QuickLookPresenter::previewItemTitle(int /*index*/) const
{
    return m_scratchURL ? std::optional(displayText(m_title)) : std::nullopt;
}

void QuickLookPresenter::discardScratch()
{
    m_isWriting = false;
    // Before the file is removed: work that writes one later sees this and removes it itself.
    m_generation->store(checkedAdd<std::uint64_t>(m_generation->load(), 1));
    if (const auto url = std::exchange(m_scratchURL, std::nullopt))
        ::unlink(file_url::nativePath(*url).constData());
    m_scratchLock.close();
}

std::optional<QUrl> QuickLookPresenter::resolveURL(const DropItem &item)
{
    discardScratch();
    const QString textExtension = QStringLiteral("txt");
    return std::visit(
        Overloaded{
            [](const DropItem::File &file) { return std::optional(file.url); },
            [&](const DropItem::ImageBytes &image) {
                return writeScratch([data = image.data] { return data; }, image.data.size(),
                                    extensionOf(image.type));
            },
            [&](const DropItem::Text &text) {
                return writeScratch([string = text.string] { return string.toUtf8(); },
                                    text.string.size(), textExtension);
            },
            [&](const DropItem::Link &link) {
                const QByteArray line = link.url.toString(QUrl::FullyEncoded).toUtf8();
                return writeScratch([line] { return line; }, line.size(), textExtension);
            },
        },
        item.payload());
}

std::optional<QUrl> QuickLookPresenter::writeScratch(const std::function<QByteArray()> &data,
                                                     qsizetype size, const QString &extension)
{
    const QByteArray path = preview_scratch::newPath(m_temporaryDirectory, extension);
    if (size > longestAtOnce) {
        writeInBackground(data, path);
    } else {
        m_scratchLock = private_file::createLocked(path, data());
        if (!m_scratchLock.isOpen())
            return std::nullopt;
    }
    m_scratchURL = file_url::fromNativePath(path);
    return m_scratchURL;
}

void QuickLookPresenter::writeInBackground(const std::function<QByteArray()> &data,
                                           const QByteArray &path)
{
    m_isWriting = true;
    m_context.workQueue.run([this, &mainQueue = m_context.mainQueue, generation = m_generation,
                             asked = m_generation->load(), data, path] {
        const auto isWanted = [generation, asked] { return generation->load() == asked; };
        if (!isWanted())
            return;
        const auto lock
            = std::make_shared<FileDescriptor>(private_file::createLocked(path, data()));
        if (!isWanted())
            ::unlink(path.constData());
        mainQueue.async([this, isWanted, lock] {
            // It discards its scratch file before it goes.
            if (isWanted())
                written(std::move(*lock));
        });
    });
}

void QuickLookPresenter::written(FileDescriptor lock)
{
    m_isWriting = false;
    m_scratchLock = std::move(lock);
    if (m_scratchLock.isOpen()) {
        m_context.panel.reloadData();
        return;
    }
    m_scratchURL.reset();
    m_previewURL.reset();
    m_context.panel.orderOut();
}

} // namespace corvane
