#include "services/page_reader.h"

#include "platform/web/shown_address.h"
#include "services/page_tags.h"

#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace corvane::page_reader {

namespace {

QString toString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::optional<QString> decoded(std::optional<std::string_view> text)
{
    return text ? std::optional(decode(toString(*text))) : std::nullopt;
}

std::optional<QString> documentTitleOf(std::string_view html)
{
    const auto title = decoded(page_tags::titleElement(html));
    return title && title->isEmpty() ? std::nullopt : title;
}

std::optional<QString> hostOf(const QUrl &url)
{
    const QString host = shownHost(url);
    return host.isEmpty() ? std::nullopt : std::optional(host);
}

std::optional<QUrl> resolved(const std::optional<QString> &address, const QUrl &base)
{
    if (!address || address->size() > maximumAddressLength)
        return std::nullopt;
    const QUrl relative(*address);
    if (!relative.isValid())
        return std::nullopt;
    const QUrl absolute = base.resolved(relative);
    return absolute.isValid() && !absolute.isRelative() ? std::optional(absolute) : std::nullopt;
}

/// One pass, linear in the text.
QString replaceAll(const QString &text, QLatin1String before, QChar replacement)
{
    qsizetype found = text.indexOf(before);
    if (found < 0)
        return text;
    QString result;
    qsizetype copied = 0;
    for (; found >= 0; found = text.indexOf(before, copied)) {
        result += QStringView(text).sliced(copied, found - copied);
        result += replacement;
        copied = found + before.size();
    }
    result += QStringView(text).sliced(copied);
    return result;
}

std::string_view view(const QByteArray &utf8)
{
    return {utf8.constData(), static_cast<std::size_t>(utf8.size())};
}

} // namespace

QString decodePage(const QByteArray &data)
{
    const QByteArrayView head = QByteArrayView(data).first(std::min(data.size(), maximumPageBytes));
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless
                               | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(head);
    return decoder.hasError() ? QString::fromLatin1(head) : text;
}

Preview parse(const QString &html, const QUrl &url)
{
    const QByteArray utf8 = html.toUtf8();
    const std::string_view text = view(utf8);
    const page_tags::MetaContents tags = page_tags::metaContents(text);
    Preview preview;
    preview.title = tags.title ? decoded(tags.title) : documentTitleOf(text);
    preview.siteName = tags.siteName ? decoded(tags.siteName) : hostOf(url);
    preview.summary = decoded(tags.summary);
    preview.imageURL = resolved(decoded(tags.image), url);
    return preview;
}

std::optional<QString> documentTitle(const QString &html)
{
    const QByteArray utf8 = html.toUtf8();
    return documentTitleOf(view(utf8));
}

QString decode(const QString &text)
{
    constexpr std::array<std::pair<QLatin1String, char16_t>, 7> entities = {{
        {QLatin1String("&amp;"), u'&'},
        {QLatin1String("&lt;"), u'<'},
        {QLatin1String("&gt;"), u'>'},
        {QLatin1String("&quot;"), u'"'},
        {QLatin1String("&#39;"), u'\''},
        {QLatin1String("&apos;"), u'\''},
        {QLatin1String("&nbsp;"), u' '},
    }};
    QString result = text;
    for (const auto &[entity, character] : entities)
        result = replaceAll(result, entity, character);
    return result.trimmed();
}

} // namespace corvane::page_reader
