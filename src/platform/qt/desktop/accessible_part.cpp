#include "platform/qt/desktop/accessible_part.h"

#include "platform/qt/desktop/panel_accessible.h"
#include "platform/qt/desktop/panel_canvas.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

QAccessible::Role qtRole(AccessibleNode::Role role)
{
    switch (role) {
    case AccessibleNode::Role::Window:
        return QAccessible::Window;
    case AccessibleNode::Role::List:
        return QAccessible::List;
    case AccessibleNode::Role::ListItem:
        return QAccessible::ListItem;
    case AccessibleNode::Role::Button:
        return QAccessible::Button;
    case AccessibleNode::Role::CheckBox:
        return QAccessible::CheckBox;
    case AccessibleNode::Role::Label:
        return QAccessible::StaticText;
    case AccessibleNode::Role::Notification:
        return QAccessible::Notification;
    }
    return QAccessible::NoRole;
}

void tellOfPart(QAccessibleInterface &part, QAccessible::Event what)
{
    QAccessibleEvent event(&part, what);
    QAccessible::updateAccessibility(&event);
}

AccessibleNode withoutChildren(const AccessibleNode &node)
{
    AccessibleNode bare = node;
    bare.children.clear();
    return bare;
}

} // namespace

AccessiblePart::AccessiblePart(PanelAccessible &owner, AccessiblePart *parent,
                               const AccessibleNode &node)
    : m_owner(&owner)
    , m_canvas(&owner.panel().canvas)
    , m_parent(parent)
    , m_node(withoutChildren(node))
{
    for (const AccessibleNode &child : node.children)
        m_children.push_back(makeChild(child));
}

AccessiblePart::~AccessiblePart()
{
    for (const Child &child : m_children)
        QAccessible::deleteAccessibleInterface(child.id);
    if (m_owner && !m_parent)
        m_owner->rootIsGone();
}

AccessiblePart::Child AccessiblePart::makeChild(const AccessibleNode &node)
{
    // Qt's registry deletes it.
    auto *part = new AccessiblePart(*m_owner, this, node);
    return {part, QAccessible::registerAccessibleInterface(part)};
}

void AccessiblePart::forgetOwner()
{
    m_owner = nullptr;
    for (const Child &child : m_children)
        child.part->forgetOwner();
}

void AccessiblePart::become(const AccessibleNode &node)
{
    const QAccessible::State before = state();
    const AccessibleNode old = std::exchange(m_node, withoutChildren(node));
    becomeChildren(node.children);
    if (old.name != m_node.name)
        tellOfPart(*this, QAccessible::NameChanged);
    if (old.description != m_node.description)
        tellOfPart(*this, QAccessible::DescriptionChanged);
    tellStates(before);
    if (!old.isFocused && m_node.isFocused && hasKeyboard())
        tellOfPart(*this, QAccessible::Focus);
}

void AccessiblePart::becomeChildren(const std::vector<AccessibleNode> &nodes)
{
    const auto keyOf = [](const Child &child) { return child.part->m_node.key; };
    // Those that are gone first, as long as their places can still be told.
    for (std::size_t i = m_children.size(); i-- > 0;) {
        if (std::ranges::find(nodes, keyOf(m_children[i]), &AccessibleNode::key) != nodes.end())
            continue;
        tellOfPart(*m_children[i].part, QAccessible::ObjectDestroyed);
        const QAccessible::Id id = m_children[i].id;
        m_children.erase(m_children.begin() + static_cast<std::ptrdiff_t>(i));
        QAccessible::deleteAccessibleInterface(id);
    }
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        const auto here = m_children.begin() + static_cast<std::ptrdiff_t>(i);
        const auto found = std::ranges::find(here, m_children.end(), nodes[i].key, keyOf);
        if (found != m_children.end()) {
            std::rotate(here, found, found + 1);
            m_children[i].part->become(nodes[i]);
            continue;
        }
        AccessiblePart &made = *m_children.insert(here, makeChild(nodes[i]))->part;
        tellOfPart(made, QAccessible::ObjectCreated);
        // Screen readers say what a notification says when it appears.
        if (nodes[i].role == AccessibleNode::Role::Notification)
            tellOfPart(made, QAccessible::ObjectShow);
        if (AccessiblePart *focus = made.focused(); focus->m_node.isFocused && hasKeyboard())
            tellOfPart(*focus, QAccessible::Focus);
    }
}

void AccessiblePart::tellStates(const QAccessible::State &before)
{
    const QAccessible::State now = state();
    const auto send = [this](const QAccessible::State &changed) {
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    };
    // One event each, because a listener may look at the first of them only.
    QAccessible::State changed;
    if (changed.checked = before.checked != now.checked; changed.checked)
        send(changed);
    changed = {};
    if (changed.selected = before.selected != now.selected; changed.selected)
        send(changed);
    changed = {};
    if (changed.busy = before.busy != now.busy; changed.busy)
        send(changed);
    changed = {};
    if (changed.disabled = before.disabled != now.disabled; changed.disabled)
        send(changed);
}

AccessiblePart *AccessiblePart::focused()
{
    for (const Child &child : m_children) {
        AccessiblePart *const found = child.part->focused();
        if (found->m_node.isFocused)
            return found;
    }
    return this;
}

bool AccessiblePart::hasKeyboard() const
{
    return m_canvas && QGuiApplication::focusWindow() == m_canvas;
}

bool AccessiblePart::isValid() const
{
    return m_owner && m_canvas;
}

QObject *AccessiblePart::object() const
{
    return m_parent ? nullptr : m_canvas.data();
}

QWindow *AccessiblePart::window() const
{
    return m_canvas.data();
}

QAccessibleInterface *AccessiblePart::parent() const
{
    return m_parent ? m_parent
                    : QAccessible::queryAccessibleInterface(QCoreApplication::instance());
}

QAccessibleInterface *AccessiblePart::focusChild() const
{
    return hasKeyboard() ? const_cast<AccessiblePart *>(this)->focused() : nullptr;
}

QAccessibleInterface *AccessiblePart::child(int index) const
{
    return index >= 0 && index < childCount() ? m_children[static_cast<std::size_t>(index)].part
                                              : nullptr;
}

int AccessiblePart::indexOfChild(const QAccessibleInterface *child) const
{
    const auto found = std::ranges::find(m_children, child, &Child::part);
    return found == m_children.end() ? -1 : static_cast<int>(found - m_children.begin());
}

QAccessibleInterface *AccessiblePart::childAt(int x, int y) const
{
    for (const Child &child : m_children) {
        if (child.part->rect().contains(x, y))
            return child.part;
    }
    return nullptr;
}

QString AccessiblePart::text(QAccessible::Text kind) const
{
    switch (kind) {
    case QAccessible::Name:
        return m_node.name;
    case QAccessible::Description:
        return m_node.description;
    default:
        return {};
    }
}

QRect AccessiblePart::rect() const
{
    if (!isValid())
        return {};
    const QRect inWindow = m_owner->panel().toWindow(m_node.frame);
    return inWindow.translated(m_canvas->mapToGlobal(QPoint()));
}

QAccessible::Role AccessiblePart::role() const
{
    return qtRole(m_node.role);
}

QAccessible::State AccessiblePart::state() const
{
    QAccessible::State state;
    state.invalid = !isValid();
    state.invisible = !m_canvas || !m_canvas->isVisible();
    state.disabled = !m_node.isEnabled;
    state.selectable = m_node.isSelectable;
    state.selected = m_node.isSelected;
    state.checkable = m_node.isCheckable;
    state.checked = m_node.isChecked;
    state.busy = m_node.isBusy;
    state.focusable = m_node.isFocusable;
    state.focused = m_node.isFocused && hasKeyboard();
    state.active = !m_parent && hasKeyboard();
    return state;
}

void *AccessiblePart::interface_cast(QAccessible::InterfaceType type)
{
    if (type == QAccessible::ActionInterface && !m_node.actions.empty())
        return static_cast<QAccessibleActionInterface *>(this);
    return nullptr;
}

QStringList AccessiblePart::actionNames() const
{
    QStringList names;
    for (const AccessibleNode::Action &action : m_node.actions)
        names << action.name;
    if (m_node.isFocusable)
        names << setFocusAction();
    return names;
}

QString AccessiblePart::localizedActionName(const QString &name) const
{
    const auto found = std::ranges::find(m_node.actions, name, &AccessibleNode::Action::name);
    return found == m_node.actions.end() ? name : found->text;
}

/// The part of an action that screen readers show; they know it by its untranslated name.
QString AccessiblePart::localizedActionDescription(const QString &name) const
{
    return localizedActionName(name);
}

void AccessiblePart::doAction(const QString &name)
{
    if (!isValid())
        return;
    m_owner->panel().perform(m_node.key, name);
}

} // namespace corvane
