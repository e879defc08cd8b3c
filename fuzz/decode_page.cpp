// A page of any bytes. What is read out of a small one is what the patterns say when a regular
// expression engine of another kind runs them, one that goes back and tries again.

#include "services/page_reader.h"

#include <QHash>
#include <QRegularExpression>
#include <QStringList>

#include <cstdint>
#include <cstdlib>

namespace corvane {

namespace {

using page_reader::Preview;

const QString blank = QStringLiteral(R"([\t-\r \x{85}\x{a0}\x{1680}\x{2000}-\x{200a}\x{2028})"
                                     R"(\x{2029}\x{202f}\x{205f}\x{3000}])");

QRegularExpression pattern(QString text)
{
    text.replace(QLatin1String("BLANK"), blank);
    return QRegularExpression(text, QRegularExpression::CaseInsensitiveOption);
}

/// The value in the first of the pattern's groups that took part.
std::optional<QString> attribute(const QRegularExpression &expression, const QString &tag)
{
    const QRegularExpressionMatch match = expression.match(tag);
    for (int group = 1; group <= 3; ++group) {
        if (match.capturedStart(group) >= 0)
            return match.captured(group);
    }
    return std::nullopt;
}

QRegularExpression attributePattern(const char *name)
{
    return pattern(
        QString::fromLatin1(name)
        + QStringLiteral(R"re(BLANK*=BLANK*(?:"([^"]*)"|'([^']*)'|((?:(?!BLANK)[^">])+)))re"));
}

QHash<QString, QString> tagsOf(const QString &html)
{
    static const QRegularExpression metaTag = pattern(QStringLiteral("<metaBLANK[^>]*>"));
    static const QRegularExpression property = attributePattern("property");
    static const QRegularExpression name = attributePattern("name");
    static const QRegularExpression content = attributePattern("content");
    QHash<QString, QString> tags;
    for (auto matches = metaTag.globalMatch(html); matches.hasNext();) {
        const QString tag = matches.next().captured();
        const auto propertyKey = attribute(property, tag);
        const auto key = propertyKey ? propertyKey : attribute(name, tag);
        const auto value = attribute(content, tag);
        if (key && value && !value->isEmpty() && !tags.contains(key->toLower()))
            tags.insert(key->toLower(), page_reader::decode(*value));
    }
    return tags;
}

std::optional<QString> first(const QHash<QString, QString> &tags, const QStringList &keys)
{
    for (const QString &key : keys) {
        if (tags.contains(key))
            return tags.value(key);
    }
    return std::nullopt;
}

/// All but the picture's address, which no pattern reads.
Preview byThePatterns(const QString &html, const QUrl &base)
{
    static const QRegularExpression title
        = pattern(QStringLiteral(R"(<title[^>]*>([\s\S]*?)</title>)"));
    const auto tags = tagsOf(html);
    Preview preview;
    preview.title = first(tags, {QStringLiteral("og:title"), QStringLiteral("twitter:title")});
    const QString element = page_reader::decode(title.match(html).captured(1));
    if (!preview.title && !element.isEmpty())
        preview.title = element;
    preview.siteName = first(tags, {QStringLiteral("og:site_name")});
    if (!preview.siteName)
        preview.siteName = base.host();
    preview.summary = first(tags,
                            {QStringLiteral("og:description"),
                             QStringLiteral("twitter:description"), QStringLiteral("description")});
    return preview;
}

void require(bool condition)
{
    if (!condition)
        std::abort();
}

void tryPage(const QByteArray &bytes)
{
    constexpr qsizetype smallPage = 4096;
    static const QUrl base(QStringLiteral("https://www.example.org/news/today.html"));
    const QString html = page_reader::decodePage(bytes);
    require(html.size() <= page_reader::maximumPageBytes);
    Preview preview = page_reader::parse(html, base);
    const auto title = page_reader::documentTitle(html);
    require(!title || preview.title);
    if (preview.imageURL)
        require(preview.imageURL->isValid() && !preview.imageURL->isRelative());
    if (bytes.size() > smallPage)
        return;
    preview.imageURL.reset();
    require(preview == byThePatterns(html, base));
}

} // namespace

} // namespace corvane

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    corvane::tryPage(
        QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size)));
    return 0;
}
