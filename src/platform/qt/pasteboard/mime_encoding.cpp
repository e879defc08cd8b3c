#include "platform/qt/pasteboard/mime_encoding.h"

#include "platform/pasteboard/pasteboard_writer.h"
#include "platform/system/file_url.h"

#include <QMimeData>

#include <algorithm>
#include <optional>

namespace corvane {

namespace {

using File = PasteboardWriter::File;
using Data = PasteboardWriter::Data;
using Text = PasteboardWriter::Text;
using Link = PasteboardWriter::Link;

/// Collects files and links as addresses and as text, and texts, in one pass: there may be many
/// thousands.
class Joined {
public:
    explicit Joined(const std::vector<PasteboardWriter> &writers)
    {
        for (const PasteboardWriter &writer : writers)
            add(writer);
    }

    QByteArray uriList;
    QList<qsizetype> inUriList;
    /// The word "copy", then the files, without a line end after the last.
    QByteArray copiedFiles;
    std::optional<QByteArray> text;
    QList<qsizetype> inText;

private:
    void add(const PasteboardWriter &writer)
    {
        if (const auto *file = std::get_if<File>(&writer.content)) {
            addFile(file->url);
        } else if (const auto *link = std::get_if<Link>(&writer.content)) {
            const QByteArray address = link->url.toEncoded(QUrl::FullyEncoded);
            addAddress(link->url, address);
            addText(address);
        } else if (const auto *string = std::get_if<Text>(&writer.content)) {
            addText(string->string.toUtf8());
        }
        ++m_place;
    }

    void addFile(const QUrl &url)
    {
        const QByteArray path = file_url::nativePath(url);
        addAddress(url, file_url::encoded(url, path));
        // A name that is not UTF-8 cannot be given as text without loss, so the text does not count
        // as holding the file.
        const bool isText = path.isValidUtf8();
        addText(isText ? path : QString::fromUtf8(path).toUtf8());
        if (!isText)
            inText.removeLast();
    }

    void addAddress(const QUrl &url, const QByteArray &address)
    {
        uriList.append(address).append("\r\n");
        inUriList.append(m_place);
        if (url.isLocalFile())
            copiedFiles.append(copiedFiles.isEmpty() ? "copy\n" : "\n").append(address);
    }

    void addText(const QByteArray &part)
    {
        if (text)
            text->append('\n').append(part);
        else
            text = part;
        inText.append(m_place);
    }

    qsizetype m_place = 0;
};

void addData(PasteboardForms &forms, const std::vector<PasteboardWriter> &writers)
{
    qsizetype place = 0;
    for (const PasteboardWriter &writer : writers) {
        const auto *data = std::get_if<Data>(&writer.content);
        const auto isSame
            = [&](const PasteboardForm &form) { return form.type == data->type.identifier(); };
        if (data && std::none_of(forms.begin(), forms.end(), isSame))
            forms.push_back({data->type.identifier(), data->bytes, {place}});
        ++place;
    }
}

} // namespace

PasteboardForms formsOf(const PasteboardContents &contents, PasteboardKind kind)
{
    PasteboardForms forms;
    addData(forms, contents.writers);
    Joined joined(contents.writers);
    if (!joined.inUriList.isEmpty())
        forms.push_back({QStringLiteral("text/uri-list"), joined.uriList, joined.inUriList});
    if (kind == PasteboardKind::Clipboard && !joined.copiedFiles.isEmpty())
        forms.push_back({QStringLiteral("x-special/gnome-copied-files"), joined.copiedFiles, {}});
    const auto text = contents.string ? std::optional(contents.string->toUtf8()) : joined.text;
    if (text) {
        // Both names share one array, since a text may be very large. Some programs take text/plain
        // without a character set for Latin-1, so the other comes first.
        forms.push_back({QStringLiteral("text/plain;charset=utf-8"), *text, joined.inText});
        forms.push_back({QStringLiteral("text/plain"), *text, joined.inText});
    }
    return forms;
}

std::unique_ptr<QMimeData> mimeDataFor(const PasteboardForms &forms)
{
    auto mimeData = std::make_unique<QMimeData>();
    for (const PasteboardForm &form : forms)
        mimeData->setData(form.type, form.bytes);
    return mimeData;
}

std::unique_ptr<QMimeData> mimeDataFor(const PasteboardContents &contents, PasteboardKind kind)
{
    return mimeDataFor(formsOf(contents, kind));
}

} // namespace corvane
