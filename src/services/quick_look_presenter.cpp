#include "services/quick_look_presenter.h"

#include "core/display_text.h"
#include "core/drop_item.h"
#include "platform/file_url.h"
#include "platform/private_file.h"

#include <QUuid>

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

/// The MIME database belongs to the user and may say anything.
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

QuickLookPresenter::QuickLookPresenter(PreviewPanel &panel, QByteArray temporaryDirectory)
    : m_panel(panel)
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
    if (m_panel.isVisible())
        m_panel.orderOut();
    else
        m_panel.makeKeyAndOrderFront();
}

std::optional<QString> QuickLookPresenter::previewItemTitle(int /*index*/) const
{
    return m_scratchURL ? std::optional(displayText(m_title)) : std::nullopt;
}

void QuickLookPresenter::discardScratch()
{
    if (const auto url = std::exchange(m_scratchURL, std::nullopt))
        ::unlink(file_url::nativePath(*url).constData());
}

std::optional<QUrl> QuickLookPresenter::resolveURL(const DropItem &item)
{
    discardScratch();
    const QString textExtension = QStringLiteral("txt");
    return std::visit(Overloaded{
                          [](const DropItem::File &file) { return std::optional(file.url); },
                          [&](const DropItem::ImageBytes &image) {
                              return writeScratch(image.data, extensionOf(image.type));
                          },
                          [&](const DropItem::Text &text) {
                              return writeScratch(text.string.toUtf8(), textExtension);
                          },
                          [&](const DropItem::Link &link) {
                              return writeScratch(link.url.toString(QUrl::FullyEncoded).toUtf8(),
                                                  textExtension);
                          },
                      },
                      item.payload());
}

std::optional<QUrl> QuickLookPresenter::writeScratch(const QByteArray &data,
                                                     const QString &extension)
{
    const QString uuid = QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
    const QString name = QLatin1String("Corvane-Preview-") + uuid + QLatin1Char('.') + extension;
    const QByteArray path = m_temporaryDirectory + '/' + name.toUtf8();
    if (!private_file::create(path, data))
        return std::nullopt;
    m_scratchURL = file_url::fromNativePath(path);
    return m_scratchURL;
}

} // namespace corvane
