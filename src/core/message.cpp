#include "core/message.h"

#include "core/shown_numbers.h"

#include <QCoreApplication>

namespace corvane {

QString Message::text() const
{
    switch (kind) {
    case Kind::PathCopied:
        return QCoreApplication::translate("Message", "Path copied");
    case Kind::ImageCopied:
        return QCoreApplication::translate("Message", "Image copied");
    case Kind::TextCopied:
        return QCoreApplication::translate("Message", "Text copied");
    case Kind::LinkCopied:
        return QCoreApplication::translate("Message", "Link copied");
    case Kind::DataUriCopied:
        return QCoreApplication::translate("Message", "Data URI copied");
    case Kind::ItemsCopied:
        return QCoreApplication::translate("Message", "%n items copied", nullptr, pluralOf(count));
    case Kind::Kept:
        return QCoreApplication::translate("Message", "Kept on the shelf");
    case Kind::NotTaken:
        return QCoreApplication::translate("Message", "It was not taken");
    case Kind::SomeNotTaken:
        return QCoreApplication::translate("Message", "%1 of %2 were not taken")
            .arg(shownNumber(count), shownNumber(whole));
    case Kind::FileIsGone:
        return QCoreApplication::translate("Message", "The file is no longer there");
    }
    return {};
}

} // namespace corvane
