#include "platform/qt/qt_pasteboard.h"

#include "platform/drop_support.h"
#include "platform/qt/pasteboard_text.h"
#include "platform/qt/remote_mounts.h"
#include "platform/qt/uri_list.h"

#include <QDeadlineTimer>
#include <QMimeData>

#include <algorithm>
#include <array>

namespace corvane {

namespace {

/// The name as the source spells it, empty when it is not offered.
QString spelling(const QStringList &types, const QString &type)
{
    const auto found = std::ranges::find_if(types, [&](const QString &offered) {
        return offered.compare(type, Qt::CaseInsensitive) == 0;
    });
    return found == types.end() ? QString() : *found;
}

/// The types that carry plain text, the most exact first.
QStringList textTypes(const QStringList &types)
{
    const QString prefix = QStringLiteral("text/plain;");
    QStringList result = types.filter(QStringLiteral("charset=utf-8"), Qt::CaseInsensitive);
    result.removeIf(
        [&](const QString &type) { return !type.startsWith(prefix, Qt::CaseInsensitive); });
    for (const char *name : {"UTF8_STRING", "text/plain"})
        result.append(spelling(types, QLatin1String(name)));
    for (const QString &type : types) {
        if (type.startsWith(prefix, Qt::CaseInsensitive))
            result.append(type);
    }
    for (const char *name : {"STRING", "TEXT"})
        result.append(spelling(types, QLatin1String(name)));
    result.removeAll(QString());
    result.removeDuplicates();
    return result;
}

} // namespace

QtPasteboard::QtPasteboard(const QMimeData *mimeData, DropSupport *support)
    : m_mimeData(mimeData)
    , m_support(support)
{
}

QStringList QtPasteboard::types() const
{
    if (!m_mimeData)
        return {};
    QStringList types = m_mimeData->formats();
    types.removeDuplicates();
    return types;
}

QByteArray QtPasteboard::fetch(const QString &type) const
{
    return type.isEmpty() || !m_mimeData ? QByteArray() : m_mimeData->data(type);
}

QList<QUrl> QtPasteboard::readUrls() const
{
    using Parser = QList<QUrl> (*)(const QByteArray &);
    constexpr std::array<std::pair<const char *, Parser>, 3> readers
        = {{{"text/uri-list", uri_list::parse},
            {"text/x-moz-url", uri_list::parseMozUrl},
            {"_NETSCAPE_URL", uri_list::parseNetscapeUrl}}};
    const QStringList offered = types();
    for (const auto &[type, parse] : readers) {
        QList<QUrl> urls = parse(fetch(spelling(offered, QLatin1String(type))));
        if (!urls.isEmpty())
            return urls;
    }
    return {};
}

QList<QUrl> QtPasteboard::urls()
{
    if (!m_urls)
        m_urls = readUrls();
    return *m_urls;
}

QList<QUrl> QtPasteboard::fileUrls()
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

std::optional<QByteArray> QtPasteboard::dataFor(const UTType &type)
{
    QByteArray data = fetch(spelling(types(), type.identifier()));
    if (data.isEmpty())
        return std::nullopt;
    return data;
}

std::optional<QString> QtPasteboard::string()
{
    const QDeadlineTimer deadline(textPatience);
    for (const QString &type : textTypes(types())) {
        // Through `data` and not `text`, which turns line ends and character sets over.
        const QByteArray bytes = fetch(type);
        if (bytes.size() > maximumTextBytes)
            return std::nullopt;
        QString text = pasteboard_text::decoded(bytes, type);
        if (!text.isEmpty())
            return text;
        if (deadline.hasExpired())
            return std::nullopt;
    }
    return std::nullopt;
}

std::optional<QString> QtPasteboard::promisedFileName()
{
    if (!m_support || !offers(m_support->directSaveType()))
        return std::nullopt;
    return m_support->promisedFileName();
}

bool QtPasteboard::receivePromisedFile(const QUrl &destination)
{
    return m_support && m_support->receivePromisedFile(destination, [this](const QString &type) {
        return fetch(type);
    });
}

} // namespace corvane
