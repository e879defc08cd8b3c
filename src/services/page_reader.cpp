#include "services/page_reader.h"

#include <QStringDecoder>

#include <re2/re2.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace corvane::page_reader {

namespace {

// Patterns run over UTF-8 and ask for the bounds of a match alone, never for its groups: then RE2
// goes over each byte once or twice. Its own \s knows the ASCII blanks only. Ignoring case it takes
// the long s and the Kelvin sign for letters of ours, but no name of a tag or an attribute has any
// of the two, and the keys are compared once more.
constexpr const char *blanks = R"(\t-\r \x{85}\x{a0}\x{1680}\x{2000}-\x{200a}\x{2028}\x{2029})"
                               R"(\x{202f}\x{205f}\x{3000})";

class Pattern {
public:
    explicit Pattern(const std::string &text)
        : m_expression(text, options())
    {
    }

    /// The leftmost match, a part of `text`.
    std::optional<std::string_view> find(std::string_view text) const
    {
        const re2::StringPiece piece(text.data(), text.size());
        re2::StringPiece match;
        if (!m_expression.Match(piece, 0, text.size(), RE2::UNANCHORED, &match, 1))
            return std::nullopt;
        return std::string_view(match.data(), match.size());
    }

private:
    static RE2::Options options()
    {
        RE2::Options options;
        options.set_case_sensitive(false);
        options.set_log_errors(false);
        return options;
    }

    RE2 m_expression;
};

/// What of `text` follows a match in it.
std::string_view after(std::string_view text, std::string_view match)
{
    return text.substr(static_cast<std::size_t>(match.data() - text.data()) + match.size());
}

QString toString(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Reads the value of an attribute out of a tag. Also inside a longer name that ends in this one.
class Attribute {
public:
    explicit Attribute(const std::string &name)
        : m_assignment(name + "[" + blanks + "]*=[" + blanks + R"(]*(?:"[^"]*"|'[^']*'|[^)" + blanks
                       + R"(">]+))")
        , m_start("=[" + std::string(blanks) + "]*")
    {
    }

    std::optional<std::string_view> value(std::string_view tag) const
    {
        const auto assignment = m_assignment.find(tag);
        if (!assignment)
            return std::nullopt;
        const std::string_view value = after(*assignment, *m_start.find(*assignment));
        // A bare value may begin with a single quote that nothing closes.
        const char quote = value.front();
        const bool isQuoted
            = (quote == '"' || quote == '\'') && value.size() > 1 && value.back() == quote;
        return isQuoted ? value.substr(1, value.size() - 2) : value;
    }

private:
    Pattern m_assignment;
    Pattern m_start;
};

/// The names of the tags that are read, in lower case.
constexpr std::array<std::string_view, 9> keys
    = {"og:title",    "twitter:title", "og:site_name", "og:description", "twitter:description",
       "description", "og:image",      "og:image:url", "twitter:image"};

/// What the page's tags say under the keys.
class MetaTable {
public:
    explicit MetaTable(std::string_view html)
    {
        // A tag reaches from the first opening in sight to the first angle. Of all the tags, those
        // are found in which a key stands: no other says anything, and a page may be made of them.
        static const Pattern metaTag("<meta[" + std::string(blanks) + "][^>]*(?:" + anyKey()
                                     + ")[^>]*>");
        while (const auto tag = metaTag.find(html)) {
            read(*tag);
            html = after(html, *tag);
        }
    }

    /// What the first of these keys holds that holds anything.
    std::optional<QString> first(std::initializer_list<std::string_view> wanted) const
    {
        for (const std::string_view key : wanted) {
            const auto &content = m_contents.at(*indexOf(key));
            if (content)
                return content;
        }
        return std::nullopt;
    }

private:
    static std::string anyKey()
    {
        std::string alternatives;
        for (const std::string_view key : keys)
            alternatives.append(alternatives.empty() ? "" : "|").append(key);
        return alternatives;
    }

    static std::optional<std::size_t> indexOf(std::string_view key)
    {
        const auto *found = std::find(keys.begin(), keys.end(), key);
        if (found == keys.end())
            return std::nullopt;
        return static_cast<std::size_t>(found - keys.begin());
    }

    /// Only ASCII becomes one of the keys in lower case: none of them has a k.
    static std::optional<std::size_t> indexOfAnyCase(std::string_view key)
    {
        std::array<char, 20> lower = {};
        if (key.size() > lower.size())
            return std::nullopt;
        std::transform(key.begin(), key.end(), lower.begin(), [](char c) {
            return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
        });
        return indexOf({lower.data(), key.size()});
    }

    void read(std::string_view tag)
    {
        static const Attribute property("property");
        static const Attribute name("name");
        static const Attribute content("content");
        auto key = property.value(tag);
        if (!key)
            key = name.value(tag);
        if (!key)
            return;
        const auto index = indexOfAnyCase(*key);
        if (!index || m_contents.at(*index))
            return;
        const auto value = content.value(tag);
        if (value && !value->empty())
            m_contents.at(*index) = decode(toString(*value));
    }

    std::array<std::optional<QString>, keys.size()> m_contents;
};

std::optional<QString> documentTitleOf(std::string_view html)
{
    // In two steps, which come to the same as one pattern: the first element is the first opening
    // that anything closes, for what closes a later one closes it as well.
    static const Pattern opening("<title[^>]*>");
    static const Pattern closing("</title>");
    const auto begin = opening.find(html);
    if (!begin)
        return std::nullopt;
    const std::string_view rest = after(html, *begin);
    const auto end = closing.find(rest);
    if (!end)
        return std::nullopt;
    const QString title
        = decode(toString(rest.substr(0, static_cast<std::size_t>(end->data() - rest.data()))));
    return title.isEmpty() ? std::nullopt : std::optional(title);
}

std::optional<QString> hostOf(const QUrl &url)
{
    const QString host = url.host();
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
    const MetaTable tags(text);
    Preview preview;
    preview.title = tags.first({"og:title", "twitter:title"});
    if (!preview.title)
        preview.title = documentTitleOf(text);
    preview.siteName = tags.first({"og:site_name"});
    if (!preview.siteName)
        preview.siteName = hostOf(url);
    preview.summary = tags.first({"og:description", "twitter:description", "description"});
    preview.imageURL = resolved(tags.first({"og:image", "og:image:url", "twitter:image"}), url);
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
