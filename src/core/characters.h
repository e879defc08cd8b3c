#pragma once

#include <QString>
#include <QStringView>

/// Characters as people count them: a letter with its accents, a flag, a family are one each.
namespace corvane::characters {

/// Linear in the text, and quick where it is of the common scripts.
qsizetype count(QStringView text);

/// The first `maximum` characters, or fewer where only so many fit into `maximumBytes` of UTF-8.
QString prefix(const QString &text, qsizetype maximum, qsizetype maximumBytes);

} // namespace corvane::characters
