#pragma once

#include <QByteArray>
#include <QList>
#include <QUrl>

/// Reads addresses and text as other programs put them on a pasteboard: with every line end there
/// is, with comments, glued together from raw paths, in several encodings. Linear and bounded; what
/// cannot be read is left out.
namespace corvane::uri_list {

constexpr qsizetype maximumUrls = 100'000;
/// Three bytes for each of the longest path's.
constexpr qsizetype maximumLineLength = 16 * 1024;

/// text/uri-list. A file's path keeps its exact bytes, and its host is dropped.
QList<QUrl> parse(const QByteArray &data);

/// text/x-moz-url: pairs of lines, an address and its title; UTF-16 of either byte order or UTF-8.
QList<QUrl> parseMozUrl(const QByteArray &data);

/// _NETSCAPE_URL: one address, and its title on a second line.
QList<QUrl> parseNetscapeUrl(const QByteArray &data);

/// One address without white space around it; invalid where it is none.
QUrl parseLine(QByteArrayView line);

} // namespace corvane::uri_list
