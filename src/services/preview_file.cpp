#include "services/preview_file.h"

#include "core/byte_count.h"
#include "core/display_text.h"
#include "platform/preview/preview_documents.h"
#include "platform/system/file_url.h"
#include "platform/system/regular_file.h"
#include "services/preview_text.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QMimeDatabase>
#include <QStringBuilder>

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace corvane::preview_file {

namespace {

/// Enough for every magic number of the MIME database.
constexpr qint64 maximumSniffed = 16'384;

QString itemCount(const QByteArray &path)
{
    DIR *const folder = ::opendir(path.constData());
    if (!folder)
        return {};
    int count = 0;
    while (const dirent *entry = ::readdir(folder)) {
        const std::string_view name(static_cast<const char *>(entry->d_name));
        if (name != "." && name != ".." && ++count > maximumCounted)
            break;
    }
    ::closedir(folder);
    if (count > maximumCounted)
        return QCoreApplication::translate("PreviewFile", "More than %n items", nullptr,
                                           maximumCounted);
    return count == 1 ? QCoreApplication::translate("PreviewFile", "1 item")
                      : QCoreApplication::translate("PreviewFile", "%n items", nullptr, count);
}

QString timeOf(const struct stat &status)
{
    const QDateTime time = QDateTime::fromSecsSinceEpoch(status.st_mtim.tv_sec);
    if (!time.isValid())
        return {};
    const QLocale locale;
    const QString hours = locale.timeFormat(QLocale::ShortFormat).remove(QLatin1String(":ss"));
    return locale.toString(time.date(), QLocale::LongFormat) % u", "
        % locale.toString(time.time(), hours);
}

QString kindOf(const QMimeType &type)
{
    QString kind = displayText(type.comment());
    if (!kind.isEmpty())
        kind[0] = kind[0].toUpper();
    return kind;
}

QMimeType specialType(mode_t mode)
{
    const char *name = "inode/fifo";
    if (S_ISSOCK(mode))
        name = "inode/socket";
    else if (S_ISCHR(mode))
        name = "inode/chardevice";
    else if (S_ISBLK(mode))
        name = "inode/blockdevice";
    return QMimeDatabase().mimeTypeForName(QLatin1String(name));
}

/// To open such a file may mean to run it, and looking at something must not lead there. Scripts
/// are programs too, by their type, but what opens them is an editor.
bool isProgram(const QMimeType &type)
{
    static constexpr std::array programs = {
        u"application/x-executable", u"application/x-sharedlib", u"application/x-ms-dos-executable",
        u"application/vnd.microsoft.portable-executable", u"application/vnd.appimage"};
    if (preview_text::isText(type))
        return type.inherits(QStringLiteral("application/x-desktop"));
    return std::ranges::any_of(
        programs, [&](const char16_t *name) { return type.inherits(QString::fromUtf16(name)); });
}

PreviewContent::Text textOf(const QByteArray &path, const QMimeType &type, const QString &name)
{
    // One byte more tells whether there is more.
    QByteArray bytes
        = regular_file::beginning(path, preview_text::maximumBytes + 1).value_or(QByteArray());
    const bool isCut = bytes.size() > preview_text::maximumBytes;
    bytes.truncate(preview_text::maximumBytes);
    preview_text::Decoded decoded = preview_text::decode(bytes, isCut);
    return {std::move(decoded.text), preview_text::isMonospaced(type, name), decoded.isCut};
}

void readRegular(PreviewContent &content, QSize wanted, PreviewDocuments &documents,
                 Cancellation &cancellation)
{
    const QByteArray path = file_url::nativePath(content.url);
    const QString name = file_url::lastPathComponent(content.url);
    const QByteArray beginning
        = regular_file::beginning(path, maximumSniffed).value_or(QByteArray());
    const QMimeType type = QMimeDatabase().mimeTypeForFileNameAndData(name, beginning);
    content.details.kind = kindOf(type);
    content.canBeOpened = !isProgram(type);
    if (beginning.isEmpty())
        return;
    if (type.name().startsWith(u"image/") || type.inherits(QStringLiteral("application/pdf"))) {
        if (auto opened = documents.open(content.url, wanted, cancellation)) {
            std::visit([&](auto &body) { content.body = std::move(body); }, *opened);
            return;
        }
    }
    if (preview_text::isText(type))
        content.body = textOf(path, type, name);
}

} // namespace

QString shownName(const QUrl &url)
{
    return displayText(file_url::lastPathComponent(url));
}

PreviewContent read(const QUrl &url, QSize wanted, PreviewDocuments &documents,
                    Cancellation &cancellation)
{
    PreviewContent content;
    content.url = url;
    content.details.name = shownName(url);
    const QByteArray path = file_url::nativePath(url);
    struct stat status = {};
    if (path.isEmpty() || path.contains('\0') || ::stat(path.constData(), &status) != 0) {
        content.body = PreviewContent::Missing{};
        return content;
    }
    content.details.modified = timeOf(status);
    if (S_ISDIR(status.st_mode)) {
        content.details.kind
            = kindOf(QMimeDatabase().mimeTypeForName(QStringLiteral("inode/directory")));
        content.details.size = itemCount(path);
        content.isFolder = true;
        content.canBeOpened = true;
    } else if (S_ISREG(status.st_mode)) {
        content.details.size = formatByteCount(status.st_size);
        readRegular(content, wanted, documents, cancellation);
    } else {
        content.details.kind = kindOf(specialType(status.st_mode));
    }
    return content;
}

} // namespace corvane::preview_file
