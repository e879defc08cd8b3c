#include "core/item_description.h"

#include "core/byte_count.h"
#include "platform/system/file_url.h"

#include <QCoreApplication>

#include <sys/stat.h>

#include <algorithm>

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
        return QCoreApplication::translate("ItemTexts", "Folder");
    QString kind = name.extension.toUpper();
    // The size of a pipe or a device says nothing.
    if (!version || version->kind != FileVersion::Kind::Regular)
        return kind;
    const QString size = formatByteCount(version->size);
    return kind.isEmpty() ? size : kind + separator() + size;
}

QString titleOfText(const QString &text)
{
    // In UTF-16 code units, more than any screen shows. A text may be one line of two hundred
    // megabytes; beyond this it is read only to see whether the line goes on.
    constexpr qsizetype maximumLength = 16'384;
    const auto first
        = std::find_if(text.begin(), text.end(), [](QChar c) { return c != QLatin1Char('\n'); });
    const auto start = std::find_if(first, text.end(),
                                    [](QChar c) { return c == QLatin1Char('\n') || !c.isSpace(); });
    const qsizetype length = std::min<qsizetype>(text.end() - start, maximumLength);
    const auto limit = start + length;
    const auto end = std::find(start, limit, QLatin1Char('\n'));
    const auto next = std::find_if(end, text.end(),
                                   [](QChar c) { return c == QLatin1Char('\n') || !c.isSpace(); });
    const QStringView title(start, end);
    const bool isWhole = next == text.end() || *next == QLatin1Char('\n');
    if (isWhole)
        return title.trimmed().toString();
    return (title.back().isHighSurrogate() ? title.chopped(1) : title).toString();
}

bool isRegularFile(const QUrl &url)
{
    struct stat status = {};
    return ::lstat(file_url::nativePath(url).constData(), &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace corvane::item_description
