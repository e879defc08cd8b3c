#include "core/phosphor_icon.h"

namespace corvane {

QString rawValue(PhosphorIcon icon)
{
    switch (icon) {
    case PhosphorIcon::Eye:
        return QStringLiteral("eye");
    case PhosphorIcon::Copy:
        return QStringLiteral("copy");
    case PhosphorIcon::X:
        return QStringLiteral("x");
    case PhosphorIcon::CaretLeft:
        return QStringLiteral("caretLeft");
    case PhosphorIcon::CaretRight:
        return QStringLiteral("caretRight");
    case PhosphorIcon::CheckSquare:
        return QStringLiteral("checkSquare");
    case PhosphorIcon::Square:
        return QStringLiteral("square");
    case PhosphorIcon::Trash:
        return QStringLiteral("trash");
    case PhosphorIcon::SquaresFour:
        return QStringLiteral("squaresFour");
    case PhosphorIcon::Check:
        return QStringLiteral("check");
    case PhosphorIcon::File:
        return QStringLiteral("file");
    case PhosphorIcon::Image:
        return QStringLiteral("image");
    case PhosphorIcon::TextAlignLeft:
        return QStringLiteral("textAlignLeft");
    case PhosphorIcon::Link:
        return QStringLiteral("link");
    case PhosphorIcon::Folder:
        return QStringLiteral("folder");
    }
    return {};
}

} // namespace corvane
