#include "core/item_description.h"

#include "core/byte_count.h"
#include "platform/file_url.h"

#include <sys/stat.h>

namespace corvane::item_description {

FileName::FileName(const QUrl &url)
    : nativePath(file_url::nativePath(url))
    , whole(file_url::lastPathComponent(nativePath))
    , extension(file_url::pathExtension(whole))
{
}

FileName::FileName(const QString &proposed)
    : whole(proposed.mid(proposed.lastIndexOf(QLatin1Char('/')) + 1))
    , extension(file_url::pathExtension(whole))
{
}

QString FileName::stem() const
{
    return extension.isEmpty() ? whole : whole.chopped(extension.size() + 1);
}

QString separator()
{
    return QStringLiteral(" · ");
}

QString ofFile(const FileName &name, const std::optional<FileVersion> &version)
{
    if (version && version->kind == FileVersion::Kind::Folder)
        return QStringLiteral("Folder");
    QString kind = name.extension.toUpper();
    // A pipe or a device has no size to speak of.
    if (!version || version->kind != FileVersion::Kind::Regular)
        return kind;
    const QString size = formatByteCount(version->size);
    return kind.isEmpty() ? size : kind + separator() + size;
}

QString titleOfText(const QString &text)
{
    // Longer than any screen shows, and a text may be one line of two hundred megabytes.
    constexpr qsizetype maximumLength = 16'384;
    qsizetype start = 0;
    while (start < text.size() && text[start] == QLatin1Char('\n'))
        ++start;
    const qsizetype end = text.indexOf(QLatin1Char('\n'), start);
    const QStringView line = QStringView(text).mid(start, end < 0 ? -1 : end - start).trimmed();
    QStringView title = line.left(maximumLength);
    if (title.size() < line.size() && title.back().isHighSurrogate())
        title.chop(1);
    return title.toString();
}

bool isRegularFile(const QUrl &url)
{
    struct stat status = {};
    return ::lstat(file_url::nativePath(url).constData(), &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace corvane::item_description
