#include "platform/qt/pasteboard/uri_list.h"

#include "platform/qt/pasteboard/pasteboard_text.h"
#include "platform/system/file_url.h"

#include <algorithm>

namespace corvane::uri_list {

namespace {

bool isLineEnd(char byte)
{
    return byte == '\n' || byte == '\r' || byte == '\0';
}

int hexDigit(char byte)
{
    if (byte >= '0' && byte <= '9')
        return byte - '0';
    const char lower = static_cast<char>(byte | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

/// Percent-decodes; a percent sign without two hexadecimal digits stands for itself.
QByteArray percentDecoded(QByteArrayView text)
{
    if (!text.contains('%'))
        return text.toByteArray();
    QByteArray bytes(text.size(), Qt::Uninitialized);
    char *end = bytes.data();
    for (qsizetype i = 0; i < text.size(); ++i) {
        const bool isCode = text[i] == '%' && i + 2 < text.size() && hexDigit(text[i + 1]) >= 0
            && hexDigit(text[i + 2]) >= 0;
        if (isCode) {
            *end++ = static_cast<char>(hexDigit(text[i + 1]) * 16 + hexDigit(text[i + 2]));
            i += 2;
        } else {
            *end++ = text[i];
        }
    }
    bytes.truncate(end - bytes.constData());
    return bytes;
}

/// Whether the path is encoded exactly as we would do it; nearly all programs do. Such a path need
/// not be decoded.
bool isWellEncoded(QByteArrayView path)
{
    for (qsizetype i = 0; i < path.size(); ++i) {
        const char byte = path[i];
        if (byte != '%') {
            const bool isPlain = (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
                || (byte >= '-' && byte <= '9') || byte == '_' || byte == '~';
            if (!isPlain)
                return false;
            continue;
        }
        const auto isCapitalDigit = [&](qsizetype at) {
            return at < path.size() && hexDigit(path[at]) >= 0 && path[at] < 'a';
        };
        const bool endsTheText = path.sliced(i).startsWith("%00");
        if (!isCapitalDigit(i + 1) || !isCapitalDigit(i + 2) || endsTheText)
            return false;
        i += 2;
    }
    return true;
}

/// The file address from what follows "file:". A raw '#' or '?' belongs to the name, because file
/// addresses have no fragment or query.
QUrl fileUrl(QByteArrayView rest)
{
    if (rest.startsWith("//")) {
        const auto slash = std::find(rest.begin() + 2, rest.end(), '/');
        rest = rest.sliced(slash - rest.begin());
    }
    if (!rest.startsWith('/'))
        return {};
    if (isWellEncoded(rest)) {
        // Faster than parsing the whole address.
        static const QUrl root(QStringLiteral("file:///"));
        QUrl url = root;
        url.setPath(QString::fromLatin1(rest), QUrl::TolerantMode);
        return url;
    }
    const QByteArray path = percentDecoded(rest);
    return path.contains('\0') ? QUrl() : file_url::fromNativePath(path);
}

bool isFileScheme(QByteArrayView line)
{
    return line.size() >= 5 && qstrnicmp(line.data(), "file:", 5) == 0;
}

/// Encodes bytes that are not UTF-8, which `QUrl` would replace.
QByteArray withEncodedBytes(QByteArrayView line)
{
    const QByteArray bytes = line.toByteArray();
    if (bytes.isValidUtf8())
        return bytes;
    QByteArray result;
    for (const char byte : bytes) {
        if (static_cast<unsigned char>(byte) < 0x80)
            result += byte;
        else
            result += '%' + QByteArray(1, byte).toHex().toUpper();
    }
    return result;
}

/// Calls `use` with each line, empty ones too, until it gives false.
template<typename Function>
void forEachLine(const QByteArray &data, Function use)
{
    auto start = data.begin();
    while (start != data.end()) {
        const auto end = std::find_if(start, data.end(), isLineEnd);
        if (!use(QByteArrayView(start, end)))
            return;
        start = end;
        if (start != data.end() && *start == '\r' && start + 1 != data.end() && start[1] == '\n')
            ++start;
        if (start != data.end())
            ++start;
    }
}

} // namespace

QUrl parseLine(QByteArrayView line)
{
    line = line.trimmed();
    if (line.isEmpty() || line.size() > maximumLineLength)
        return {};
    if (isFileScheme(line))
        return fileUrl(line.sliced(5));
    const QUrl url = QUrl::fromEncoded(withEncodedBytes(line), QUrl::TolerantMode);
    return url.isValid() && !url.isRelative() ? url : QUrl();
}

QList<QUrl> parse(const QByteArray &data)
{
    QList<QUrl> urls;
    forEachLine(data, [&](QByteArrayView line) {
        if (!line.trimmed().startsWith('#')) {
            if (QUrl url = parseLine(line); url.isValid())
                urls.append(std::move(url));
        }
        return urls.size() < maximumUrls;
    });
    return urls;
}

QList<QUrl> parseMozUrl(const QByteArray &data)
{
    QList<QUrl> urls;
    bool isTitle = false;
    forEachLine(pasteboard_text::decodedUtf16Or8(data).toUtf8(), [&](QByteArrayView line) {
        if (!isTitle) {
            if (QUrl url = parseLine(line); url.isValid())
                urls.append(std::move(url));
        }
        isTitle = !isTitle;
        return urls.size() < maximumUrls;
    });
    return urls;
}

QList<QUrl> parseNetscapeUrl(const QByteArray &data)
{
    QList<QUrl> urls;
    forEachLine(data, [&](QByteArrayView line) {
        if (QUrl url = parseLine(line); url.isValid())
            urls.append(std::move(url));
        return false;
    });
    return urls;
}

} // namespace corvane::uri_list
