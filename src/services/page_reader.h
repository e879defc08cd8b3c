#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

/// What a web page says about itself: Open Graph, Twitter-card and plain meta tags, and its title.
///
/// A page is read as text, not as a document: tags inside of comments and scripts count as any
/// other. Everything here is a function of its arguments, for any thread, and takes time linear in
/// the page, whatever stands in it. A blank is a character of Unicode's White_Space property, line
/// ends included.
namespace corvane::page_reader {

struct Preview {
    std::optional<QString> title;
    std::optional<QString> siteName;
    std::optional<QString> summary;
    /// Absolute.
    std::optional<QUrl> imageURL;

    /// Whether there is a title, even an empty one, or a picture: a site's name is not enough.
    bool isUseful() const { return title || imageURL; }

    bool operator==(const Preview &) const = default;
};

/// Nothing of a page is read past its first 3 MiB.
inline constexpr qsizetype maximumPageBytes = 3LL * 1024 * 1024;
/// A longer address of a picture counts as none: no server takes it.
inline constexpr qsizetype maximumAddressLength = 64LL * 1024;

/// UTF-8, else Latin-1 as a whole: also when the limit cuts a character in two. What the page or
/// its server says about its encoding is not asked for.
QString decodePage(const QByteArray &data);

/// `url` is the page's final address: its host is the site's name where the page gives none, and
/// the picture's address is relative to it. The first tag of a name wins, even if what it says is
/// blank or no address; a tag without content counts for nothing.
Preview parse(const QString &html, const QUrl &url);

/// What the first title element holds, none when that is nothing but blanks.
std::optional<QString> documentTitle(const QString &html);

/// Replaces &amp; &lt; &gt; &quot; &#39; &apos; &nbsp; in this order, so that what was escaped
/// twice is decoded twice, and trims blanks at both ends. No other entity is known.
QString decode(const QString &text);

} // namespace corvane::page_reader
