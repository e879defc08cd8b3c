#include "platform/qt/mime_encoding.h"

#include "platform/file_url.h"
#include "platform/pasteboard_writer.h"

#include <QList>
#include <QMimeData>

#include <optional>

namespace corvane {

namespace {

using File = PasteboardWriter::File;
using Data = PasteboardWriter::Data;
using Text = PasteboardWriter::Text;
using Link = PasteboardWriter::Link;

std::optional<QUrl> urlOf(const PasteboardWriter &writer)
{
    if (const auto *file = std::get_if<File>(&writer.content))
        return file->url;
    if (const auto *link = std::get_if<Link>(&writer.content))
        return link->url;
    return std::nullopt;
}

std::optional<QString> textOf(const PasteboardWriter &writer)
{
    if (const auto *file = std::get_if<File>(&writer.content))
        return QString::fromUtf8(file_url::nativePath(file->url));
    if (const auto *link = std::get_if<Link>(&writer.content))
        return link->url.toString(QUrl::FullyEncoded);
    if (const auto *text = std::get_if<Text>(&writer.content))
        return text->string;
    return std::nullopt;
}

std::optional<QString> textOf(const PasteboardContents &contents)
{
    if (contents.string)
        return contents.string;
    std::optional<QString> joined;
    for (const PasteboardWriter &writer : contents.writers) {
        const auto text = textOf(writer);
        if (!text)
            continue;
        joined = joined ? QString(*joined % QLatin1Char('\n') % *text) : *text;
    }
    return joined;
}

/// The verb, then the files, with no line end after the last.
QByteArray copiedFiles(const QList<QUrl> &urls)
{
    QByteArray lines;
    for (const QUrl &url : urls) {
        if (url.isLocalFile())
            lines += '\n' + url.toEncoded(QUrl::FullyEncoded);
    }
    return lines.isEmpty() ? lines : "copy" + lines;
}

} // namespace

std::unique_ptr<QMimeData> mimeDataFor(const PasteboardContents &contents, PasteboardKind kind)
{
    auto mimeData = std::make_unique<QMimeData>();
    QList<QUrl> urls;
    for (const PasteboardWriter &writer : contents.writers) {
        if (const auto url = urlOf(writer))
            urls.append(*url);
        const auto *data = std::get_if<Data>(&writer.content);
        if (data && !mimeData->hasFormat(data->type.identifier()))
            mimeData->setData(data->type.identifier(), data->bytes);
    }
    if (!urls.isEmpty())
        mimeData->setUrls(urls);
    const QByteArray files = copiedFiles(urls);
    if (kind == PasteboardKind::Clipboard && !files.isEmpty())
        mimeData->setData(QStringLiteral("x-special/gnome-copied-files"), files);
    if (const auto text = textOf(contents))
        mimeData->setText(*text);
    return mimeData;
}

} // namespace corvane
