#pragma once

#include "platform/desktop/accessible_node.h"

#include <QAccessible>
#include <QAccessibleInterface>
#include <QPointer>

#include <vector>

namespace corvane {

class PanelAccessible;
class PanelCanvas;

/// A node of a panel's accessible tree, as Qt wants to have it. Qt's registry owns it, and knows it
/// by a number; a part takes its children out of there.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    /// The parent is null for the panel itself.
    AccessiblePart(PanelAccessible &owner, AccessiblePart *parent, const AccessibleNode &node);
    ~AccessiblePart() override;
    AccessiblePart(const AccessiblePart &) = delete;
    AccessiblePart &operator=(const AccessiblePart &) = delete;

    /// Takes over the node, which has the same key, and its children, and tells what changed.
    void become(const AccessibleNode &node);
    /// The part that keys act on; this one if there is no such part below it.
    AccessiblePart *focused();
    /// From now on there is no panel.
    void forgetOwner();

    bool isValid() const override;
    QObject *object() const override;
    QWindow *window() const override;
    QAccessibleInterface *parent() const override;
    QAccessibleInterface *focusChild() const override;
    QAccessibleInterface *child(int index) const override;
    int childCount() const override { return static_cast<int>(m_children.size()); }
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text /*kind*/, const QString & /*text*/) override { }
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void *interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    QString localizedActionName(const QString &name) const override;
    QString localizedActionDescription(const QString &name) const override;
    void doAction(const QString &name) override;
    QStringList keyBindingsForAction(const QString & /*name*/) const override { return {}; }

private:
    struct Child {
        AccessiblePart *part = nullptr;
        /// The registry may have deleted the part.
        QAccessible::Id id = 0;
    };
    Child makeChild(const AccessibleNode &node);
    void becomeChildren(const std::vector<AccessibleNode> &nodes);
    void tellStates(const QAccessible::State &before);
    bool hasKeyboard() const;

    PanelAccessible *m_owner;
    QPointer<PanelCanvas> m_canvas;
    AccessiblePart *m_parent;
    /// Without its children, which are `m_children`.
    AccessibleNode m_node;
    std::vector<Child> m_children;
};

} // namespace corvane
