#include "shelf/accessible_items.h"

#include "core/display_text.h"
#include "core/item_description.h"

#include <QCoreApplication>
#include <QStringList>

namespace corvane::accessible_items {

namespace {

const QLatin1String keyPrefix("item ");

struct ItemWords {
    Q_DECLARE_TR_FUNCTIONS(AccessibleItems)
};

QString kindOf(const DropItem &item)
{
    switch (item.glyph()) {
    case PhosphorIcon::Folder:
        return ItemWords::tr("Folder");
    case PhosphorIcon::Image:
        return ItemWords::tr("Picture");
    case PhosphorIcon::TextAlignLeft:
        return ItemWords::tr("Text");
    case PhosphorIcon::Link:
        return ItemWords::tr("Link");
    default:
        return ItemWords::tr("File");
    }
}

} // namespace

AccessibleNode describe(const DropItem &item, Place place)
{
    const QString kind = kindOf(item);
    // A separator has a name, which need not be heard.
    const QString shown
        = displayText(item.subtitle()).replace(item_description::separator(), QLatin1String(", "));
    QStringList said{kind};
    // A folder's subtitle may be just that word, which need not be heard twice.
    if (!shown.isEmpty() && shown != kind)
        said << shown;
    said << ItemWords::tr("%L1 of %L2").arg(place.index + 1).arg(place.count);
    if (item.isBeingMade())
        said << ItemWords::tr("being made ready");

    AccessibleNode node;
    node.key = keyOf(item.id());
    node.role = AccessibleNode::Role::ListItem;
    node.name = displayText(item.title());
    node.description = said.join(QLatin1String(", "));
    node.isBusy = item.isBeingMade();
    return node;
}

QString spoken(const DropItem &item, Place place)
{
    const AccessibleNode node = describe(item, place);
    return node.name + QLatin1String(", ") + node.description;
}

QString focus()
{
    return QStringLiteral("SetFocus");
}

QString keyOf(const QUuid &item)
{
    return keyPrefix + item.toString(QUuid::WithoutBraces);
}

std::optional<QUuid> itemOf(const QString &key)
{
    if (!key.startsWith(keyPrefix))
        return std::nullopt;
    const QUuid id = QUuid::fromString(QStringView(key).mid(keyPrefix.size()));
    return id.isNull() ? std::nullopt : std::optional(id);
}

} // namespace corvane::accessible_items
