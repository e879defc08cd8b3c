#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Text from other programs' bytes, by what the bytes say where the type does not.
namespace corvane::pasteboard_text {

/// By a byte-order mark; else UTF-16 where NUL bytes show it; else UTF-8 where it is valid; else
/// Western European, which shows something for every byte. NUL bytes at the end do not count.
QString decoded(const QByteArray &bytes);

/// In the character set of a MIME type's parameter ("text/plain;charset=utf-16"); by the bytes
/// where it names none that we know.
QString decoded(const QByteArray &bytes, const QString &mimeType);

/// For types that are UTF-16 in most programs and UTF-8 in some, either byte order, with or without
/// a mark: an address begins with ASCII, so every other byte of its beginning is 0.
QString decodedUtf16Or8(const QByteArray &bytes);

/// Those of `types` that carry plain text, in the spelling of their source, the most exact first:
/// what is in Unicode and has not been made ready for other systems before what has, and that
/// before what can only hold some characters.
QStringList typesByExactness(const QStringList &types);

} // namespace corvane::pasteboard_text
