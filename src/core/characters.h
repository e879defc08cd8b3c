#pragma once

#include <QString>
#include <QStringView>

/// Characters as people count them (grapheme clusters): a letter with its accents, a flag, an emoji
/// of a family are one each.
namespace corvane::characters {

/// How many characters the text has; "\r\n" is one. Takes time in proportion to the text, and least
/// where it is Latin, Greek, Cyrillic or Chinese.
qsizetype count(QStringView text);

/// The first `maximum` characters, or fewer where only so many fit into `maximumBytes` of UTF-8.
QString prefix(const QString &text, qsizetype maximum, qsizetype maximumBytes);

} // namespace corvane::characters
