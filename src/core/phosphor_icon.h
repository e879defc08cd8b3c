#pragma once

#include <QString>

namespace corvane {

/// The names of the icons. Their drawings belong to the shelf; the model only names one.
enum class PhosphorIcon {
    Eye,
    Copy,
    X,
    CaretLeft,
    CaretRight,
    CheckSquare,
    Square,
    Trash,
    SquaresFour,
    Check,
    File,
    Image,
    TextAlignLeft,
    Link,
    Folder,
};

/// "eye", "copy", "x", "caretLeft" and so on.
QString rawValue(PhosphorIcon icon);

} // namespace corvane
