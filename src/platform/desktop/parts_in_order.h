#pragma once

#include <QString>

namespace corvane {

/// A line whose parts stand between middle dots, "PNG · 2 KB", for a reader of that direction: from
/// right to left its parts keep their order. A number would otherwise go to the Latin letters
/// before it, away from a unit in letters of its own script.
inline QString withPartsInOrder(QString line, Qt::LayoutDirection direction)
{
    // The mark is a letter of that direction which is not seen.
    if (direction == Qt::RightToLeft)
        line.replace(u'\u00B7', QStringLiteral("\u00B7\u200F"));
    return line;
}

} // namespace corvane
