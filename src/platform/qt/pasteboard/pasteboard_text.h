#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// Decodes text of other programs whose encoding the type may not tell.
namespace corvane::pasteboard_text {

/// By a byte-order mark; else UTF-16 where NUL bytes show it; else UTF-8 where it is valid; else
/// Western European, which shows something for every byte. NUL bytes at the end do not count.
QString decoded(const QByteArray &bytes);

/// In the character set that the MIME type names ("text/plain;charset=utf-16"); if it names none
/// that is known, as above.
QString decoded(const QByteArray &bytes, const QString &mimeType);

/// For types that most programs write in UTF-16 and some in UTF-8; either byte order, with or
/// without a mark. An address begins with ASCII, so in UTF-16 every other byte of its beginning is
/// 0.
QString decodedUtf16Or8(const QByteArray &bytes);

/// The types among `types` that hold plain text, as the source spells them, the most exact first:
/// Unicode as it is; then Unicode with converted line ends; then encodings that lack characters.
QStringList typesByExactness(const QStringList &types);

} // namespace corvane::pasteboard_text
