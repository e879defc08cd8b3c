#include "golden/another_word.h"
#include "golden/damage.h"

#include <QAbstractButton>
#include <QGraphicsOpacityEffect>
#include <QLabel>
#include <QLayout>

#include <algorithm>

namespace corvane::test {

namespace {

QString nameOf(const QWidget &widget)
{
    const QString text = widget.property("text").toString();
    return QString::fromLatin1(widget.metaObject()->className()) % u" \"" % text.left(24) % u'"';
}

/// Whether something of it can be told from its ground: it writes, or draws and has no children.
bool isSeen(const QWidget &widget)
{
    if (!widget.isVisible() || widget.visibleRegion().isEmpty())
        return false;
    const QList<QWidget *> children
        = widget.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    if (children.isEmpty() || !widget.property("text").toString().isEmpty())
        return widget.metaObject() != &QWidget::staticMetaObject;
    return std::any_of(children.begin(), children.end(),
                       [](const QWidget *child) { return isSeen(*child); });
}

/// Whether no part of it reaches out of what it stands in.
bool isWhole(const QWidget &widget)
{
    for (const QWidget *around = widget.parentWidget(); around; around = around->parentWidget()) {
        if (!around->rect().contains(QRect(widget.mapTo(around, QPoint()), widget.size())))
            return false;
    }
    return true;
}

/// Whether the toolkit puts it back in its place before it is painted: what a scroll area has its
/// bars in.
bool isPutBack(const QWidget &widget)
{
    const QString name = widget.objectName();
    return name.startsWith(u"qt_scrollarea_") && name.endsWith(u"container");
}

/// Whole tiles around a widget, in points of its window.
QRect tilesAround(const QWidget &widget, const QWidget &window)
{
    constexpr int side = 8;
    const QRect place(widget.mapTo(&window, QPoint()), widget.size());
    const QRect around = place.adjusted(-side, -side, side, side).intersected(window.rect());
    const QPoint corner(around.left() / side * side, around.top() / side * side);
    return QRect(corner, around.bottomRight());
}

void erase(QWidget *widget)
{
    auto *effect = new QGraphicsOpacityEffect(widget);
    effect->setOpacity(0);
    widget->setGraphicsEffect(effect);
}

/// What is written on it; its layout stays as it was.
template<typename Widget>
void addTexts(Widget *widget, std::vector<Damage> &damages)
{
    const QString says = widget->text();
    if (says.isEmpty() || says.startsWith(u'<'))
        return;
    const QRect place = widget->geometry();
    const auto say = [widget, place](const QString &text) {
        return [=] {
            widget->setText(text);
            widget->setGeometry(place);
        };
    };
    damages.push_back({nameOf(*widget) % u" with another word", say(anotherWord(says)), say(says)});
    damages.push_back(
        {nameOf(*widget) % u" with another letter", say(anotherLetter(says)), say(says)});
}

void addDamages(QWidget *widget, std::vector<Damage> &damages)
{
    damages.push_back({nameOf(*widget) % u" erased", [widget] { erase(widget); },
                       [widget] { widget->setGraphicsEffect(nullptr); }});
    // Of what reaches out of sight there may be a stroke or two, a tenth of which nobody sees.
    damages.back().isErasure = isWhole(*widget);
    const QPoint there = widget->pos();
    for (const auto &[step, way] :
         {std::pair(QPoint(1, 0), u" to the right"), {QPoint(0, 1), u" down"}}) {
        // What reaches out of sight may show nothing but its ground.
        if (!isWhole(*widget) || isPutBack(*widget))
            break;
        damages.push_back({nameOf(*widget) % way, [=] { widget->move(there + step); },
                           [=] { widget->move(there); }});
    }
    if (auto *label = qobject_cast<QLabel *>(widget))
        addTexts(label, damages);
    if (auto *button = qobject_cast<QAbstractButton *>(widget))
        addTexts(button, damages);
}

} // namespace

std::vector<Damage> damagesOf(QWidget &window)
{
    std::vector<Damage> damages;
    for (QWidget *widget : window.findChildren<QWidget *>()) {
        if (!isSeen(*widget))
            continue;
        const std::size_t before = damages.size();
        addDamages(widget, damages);
        for (std::size_t i = before; i < damages.size(); ++i)
            damages[i].part = tilesAround(*widget, window);
    }
    return damages;
}

} // namespace corvane::test
