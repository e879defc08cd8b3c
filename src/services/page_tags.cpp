#include "services/page_tags.h"

#include <re2/re2.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <mutex>
#include <string>

namespace corvane::page_tags {

namespace {

// Patterns ask for the bounds of a match alone, never for its groups: then RE2 goes over each byte
// once or twice. Its own \s knows the ASCII blanks only. Ignoring case it takes the long s and the
// Kelvin sign for letters of ours, but no name of a tag or an attribute has any of the two, and the
// keys are compared once more.
constexpr const char *blanks = R"(\t-\r \x{85}\x{a0}\x{1680}\x{2000}-\x{200a}\x{2028}\x{2029})"
                               R"(\x{202f}\x{205f}\x{3000})";

std::string equalsSign()
{
    const std::string blank = "[" + std::string(blanks) + "]";
    return blank + "*=" + blank + "*";
}

class Pattern {
public:
    explicit Pattern(const std::string &text)
        : m_expression(text, options())
    {
    }

    /// The leftmost match, a part of `text`.
    std::optional<std::string_view> find(std::string_view text) const
    {
        return match(text, RE2::UNANCHORED);
    }

    /// The match with which `text` begins.
    std::optional<std::string_view> atStartOf(std::string_view text) const
    {
        return match(text, RE2::ANCHOR_START);
    }

private:
    static RE2::Options options()
    {
        RE2::Options options;
        options.set_case_sensitive(false);
        options.set_log_errors(false);
        return options;
    }

    std::optional<std::string_view> match(std::string_view text, RE2::Anchor anchor) const
    {
        const re2::StringPiece piece(text.data(), text.size());
        re2::StringPiece found;
        if (!m_expression.Match(piece, 0, text.size(), anchor, &found, 1))
            return std::nullopt;
        return std::string_view(found.data(), found.size());
    }

    RE2 m_expression;
};

/// What of `text` follows a match in it.
std::string_view after(std::string_view text, std::string_view match)
{
    return text.substr(static_cast<std::size_t>(match.data() - text.data()) + match.size());
}

/// Reads the value of an attribute out of a tag. Also inside a longer name that ends in this one.
class Attribute {
public:
    explicit Attribute(const std::string &name)
        : m_nameLength(name.size())
        , m_assignment(name + equalsSign() + R"((?:"[^"]*"|'[^']*'|[^)" + blanks + R"(">]+))")
        , m_start(equalsSign())
    {
    }

    std::optional<std::string_view> value(std::string_view tag) const
    {
        const auto assignment = m_assignment.find(tag);
        if (!assignment)
            return std::nullopt;
        const std::string_view rest = assignment->substr(m_nameLength);
        const std::string_view value = after(rest, *m_start.atStartOf(rest));
        // A bare value may begin with a single quote that nothing closes.
        const char quote = value.front();
        const bool isQuoted
            = (quote == '"' || quote == '\'') && value.size() > 1 && value.back() == quote;
        return isQuoted ? value.substr(1, value.size() - 2) : value;
    }

private:
    std::size_t m_nameLength;
    Pattern m_assignment;
    Pattern m_start;
};

/// What a preview takes from tags, and for each of it the keys, in lower case, the preferred first.
struct Field {
    std::optional<std::string_view> MetaContents::*content = nullptr;
    std::array<std::string_view, 3> keys;
    std::size_t keyCount = 0;
};
constexpr std::array fields = {
    Field{&MetaContents::title, {"og:title", "twitter:title"}, 2},
    Field{&MetaContents::siteName, {"og:site_name"}, 1},
    Field{&MetaContents::summary, {"og:description", "twitter:description", "description"}, 3},
    Field{&MetaContents::image, {"og:image", "og:image:url", "twitter:image"}, 3},
};

/// How many of each field's keys are still sought, from the first one.
using Sought = std::array<std::size_t, fields.size()>;

/// Finds the tags that may say something under a key which is still sought. Nothing else in a page
/// is looked at more closely, however many tags it is made of.
class SoughtTags {
public:
    /// Compiles each pattern once, when it is first asked for. Any thread.
    const Pattern &pattern(const Sought &sought)
    {
        std::size_t index = 0;
        for (std::size_t field = 0; field < fields.size(); ++field)
            index = index * (fields.at(field).keyCount + 1) + sought.at(field);
        Entry &entry = m_entries.at(index);
        std::call_once(entry.isCompiled, [&] { entry.pattern.emplace(expression(sought)); });
        return *entry.pattern;
    }

private:
    struct Entry {
        std::once_flag isCompiled;
        std::optional<Pattern> pattern;
    };

    static std::string keysOf(const Sought &sought)
    {
        std::string keys;
        for (std::size_t field = 0; field < fields.size(); ++field) {
            for (std::size_t i = 0; i < sought.at(field); ++i)
                keys.append(keys.empty() ? "" : "|").append(fields.at(field).keys.at(i));
        }
        return keys;
    }

    /// A tag reaches from the first opening in sight to the first angle. In it one of the keys is
    /// assigned, and a content that does not begin with its end; the key may stand in the content.
    /// That is necessary, not sufficient.
    static std::string expression(const Sought &sought)
    {
        const std::string key
            = "(?:property|name)" + equalsSign() + R"(["']?(?:)" + keysOf(sought) + ")";
        const std::string content = "content" + equalsSign();
        const std::string beginning = R"((?:"[^">]|'[^'>]|[^)" + std::string(blanks) + R"("'>]))";
        return "<meta[" + std::string(blanks) + "][^>]*(?:" + key + "[^>]*" + content
            + "(?:" + beginning + "[^>]*|')|" + content + R"((?:["']?|)" + beginning + "[^>]*)"
            + key + "[^>]*)>";
    }

    static constexpr std::size_t combinations = 3UL * 2 * 4 * 4;
    std::array<Entry, combinations> m_entries;
};

/// Only ASCII becomes one of the keys in lower case: none of them has a k.
bool isInLowerCase(std::string_view text, std::string_view key)
{
    return std::ranges::equal(text, key, [](char c, char wanted) {
        return (c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c) == wanted;
    });
}

class MetaReader {
public:
    explicit MetaReader(std::string_view html)
    {
        static SoughtTags tags;
        while (m_sought != Sought{}) {
            const auto tag = tags.pattern(m_sought).find(html);
            if (!tag)
                return;
            read(*tag);
            html = after(html, *tag);
        }
    }

    const MetaContents &contents() const { return m_contents; }

private:
    void read(std::string_view tag)
    {
        static const Attribute property("property");
        static const Attribute name("name");
        auto key = property.value(tag);
        if (!key)
            key = name.value(tag);
        if (!key)
            return;
        for (std::size_t field = 0; field < fields.size(); ++field) {
            for (std::size_t i = 0; i < m_sought.at(field); ++i) {
                if (isInLowerCase(*key, fields.at(field).keys.at(i)))
                    return take(field, i, tag);
            }
        }
    }

    void take(std::size_t field, std::size_t key, std::string_view tag)
    {
        static const Attribute content("content");
        const auto value = content.value(tag);
        if (!value || value->empty())
            return;
        m_contents.*fields.at(field).content = value;
        // From now on only keys count that are preferred to this one.
        m_sought.at(field) = key;
    }

    Sought m_sought
        = {fields[0].keyCount, fields[1].keyCount, fields[2].keyCount, fields[3].keyCount};
    MetaContents m_contents;
};

} // namespace

MetaContents metaContents(std::string_view html)
{
    return MetaReader(html).contents();
}

std::optional<std::string_view> titleElement(std::string_view html)
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
    return rest.substr(0, static_cast<std::size_t>(end->data() - rest.data()));
}

} // namespace corvane::page_tags
