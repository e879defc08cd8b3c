#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

/// Parses lists of addresses as other programs write them: with any line ends, with comments, as
/// raw paths, in several encodings. Takes linear time, with limits; what cannot be parsed is left
/// out.
namespace corvane::uri_list {

/// Further addresses are ignored.
constexpr qsizetype maximumUrls = 100'000;
/// In bytes: three, as "%2F" has, for each byte of the longest path, and some more.
constexpr qsizetype maximumLineLength = 16LL * 1024;

/// text/uri-list. A file's path keeps its exact bytes; the host of its address is dropped.
QList<QUrl> parse(const QByteArray &data);

/// text/x-moz-url: pairs of lines, an address and its title; UTF-16 of either byte order or UTF-8.
QList<QUrl> parseMozUrl(const QByteArray &data);

/// _NETSCAPE_URL: one address, and its title on a second line.
QList<QUrl> parseNetscapeUrl(const QByteArray &data);

/// An address with white space around it; invalid if it is none.
QUrl parseLine(QByteArrayView line);

} // namespace corvane::uri_list
