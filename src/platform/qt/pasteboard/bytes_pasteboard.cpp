#include "platform/qt/pasteboard/bytes_pasteboard.h"

#include "platform/qt/pasteboard/pasteboard_text.h"
#include "platform/qt/pasteboard/uri_list.h"
#include "platform/qt/system/remote_mounts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace corvane {

namespace {

using Parser = QList<QUrl> (*)(const QByteArray &);
constexpr std::array<std::pair<const char *, Parser>, 3> addressReaders
    = {{{"text/uri-list", uri_list::parse},
        {"text/x-moz-url", uri_list::parseMozUrl},
        {"_NETSCAPE_URL", uri_list::parseNetscapeUrl}}};

} // namespace

QString BytesPasteboard::spelling(const QStringList &offered, const QString &type)
{
    const auto found = std::ranges::find_if(
        offered, [&](const QString &name) { return name.compare(type, Qt::CaseInsensitive) == 0; });
    return found == offered.end() ? QString() : *found;
}

QStringList BytesPasteboard::addressTypes(const QStringList &offered)
{
    QStringList types;
    for (const auto &[type, parse] : addressReaders) {
        const QString spelled = spelling(offered, QLatin1String(type));
        if (!spelled.isEmpty())
            types << spelled;
    }
    return types;
}

QList<QUrl> BytesPasteboard::readUrls() const
{
    const QStringList offered = types();
    for (const auto &[type, parse] : addressReaders) {
        const QString spelled = spelling(offered, QLatin1String(type));
        QList<QUrl> urls = spelled.isEmpty() ? QList<QUrl>() : parse(bytesOf(spelled));
        if (!urls.isEmpty())
            return urls;
    }
    return {};
}

QList<QUrl> BytesPasteboard::urls()
{
    if (!m_urls)
        m_urls = readUrls();
    return *m_urls;
}

QList<QUrl> BytesPasteboard::fileUrls()
{
    QList<QUrl> files;
    std::optional<RemoteMounts> mounts;
    for (const QUrl &url : urls()) {
        if (url.isLocalFile()) {
            files.append(url);
        } else if (RemoteMounts::mayHold(url)) {
            if (!mounts)
                mounts = RemoteMounts::ofSession();
            if (const auto file = mounts->localFile(url))
                files.append(*file);
        }
    }
    return files;
}

std::optional<QByteArray> BytesPasteboard::dataFor(const UTType &type)
{
    const QString spelled = spelling(types(), type.identifier());
    QByteArray data = spelled.isEmpty() ? QByteArray() : bytesOf(spelled);
    if (data.isEmpty())
        return std::nullopt;
    return data;
}

std::optional<QString> BytesPasteboard::string()
{
    if (!m_string)
        m_string = readString();
    return *m_string;
}

std::optional<QString> BytesPasteboard::readString() const
{
    for (const QString &type : pasteboard_text::typesByExactness(types())) {
        const QByteArray bytes = bytesOf(type);
        if (bytes.size() > maximumTextBytes)
            return std::nullopt;
        QString text = pasteboard_text::decoded(bytes, type);
        if (!text.isEmpty())
            return text;
    }
    return std::nullopt;
}

} // namespace corvane
