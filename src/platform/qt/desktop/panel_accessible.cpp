#include "platform/qt/desktop/panel_accessible.h"

#include "platform/base/main_queue.h"
#include "platform/qt/desktop/accessible_part.h"
#include "platform/qt/desktop/panel_canvas.h"

#include <QAccessible>
#include <QGuiApplication>

#include <utility>

namespace corvane {

namespace {

/// Has Qt ask the canvas whenever it wants to know what an object is to a screen reader.
void installFactory()
{
    static const bool isInstalled = [] {
        QAccessible::installFactory([](const QString &, QObject *object) -> QAccessibleInterface * {
            const auto *canvas = dynamic_cast<PanelCanvas *>(object);
            return canvas && canvas->makeAccessible ? canvas->makeAccessible() : nullptr;
        });
        return true;
    }();
    Q_UNUSED(isInstalled)
}

void tellOfPanel(PanelCanvas &canvas, QAccessible::Event what)
{
    QAccessibleEvent event(&canvas, what);
    QAccessible::updateAccessibility(&event);
}

} // namespace

PanelAccessible::PanelAccessible(Panel panel)
    : m_panel(std::move(panel))
{
    installFactory();
    m_panel.canvas.makeAccessible
        = m_lifetime.guard([this]() -> QAccessibleInterface * { return makeRoot(); });
}

PanelAccessible::~PanelAccessible()
{
    if (m_root)
        m_root->forgetOwner();
}

QAccessibleInterface *PanelAccessible::makeRoot()
{
    // Owned by Qt.
    m_root = new AccessiblePart(*this, nullptr, read());
    return m_root;
}

AccessibleNode PanelAccessible::read() const
{
    AccessibleNode tree = m_panel.read();
    tree.children.insert(tree.children.end(), m_announcements.begin(), m_announcements.end());
    return tree;
}

void PanelAccessible::changed()
{
    if (m_root)
        updateSoon();
}

/// Later, because it may have been an action of a part that changed something, and that part may be
/// deleted then.
void PanelAccessible::updateSoon()
{
    if (std::exchange(m_isUpdateDue, true))
        return;
    m_panel.queue.async(m_lifetime.guard([this] { update(); }));
}

void PanelAccessible::update()
{
    m_isUpdateDue = false;
    if (m_root)
        m_root->become(read());
}

void PanelAccessible::announce(const QString &text)
{
    if (!QAccessible::isActive())
        return;
    // Makes the root, if it has not been made.
    QAccessible::queryAccessibleInterface(&m_panel.canvas);
    AccessibleNode node;
    node.key = QStringLiteral("announcement %1").arg(++m_announced);
    node.role = AccessibleNode::Role::Notification;
    node.name = text;
    m_announcements.push_back(node);
    updateSoon();
    m_panel.queue.asyncAfter(announcementDuration, m_lifetime.guard([this] {
        m_announcements.erase(m_announcements.begin());
        changed();
    }));
}

void PanelAccessible::shown()
{
    if (!QAccessible::isActive())
        return;
    tellOfPanel(m_panel.canvas, QAccessible::ObjectCreated);
    tellOfPanel(m_panel.canvas, QAccessible::ObjectShow);
}

void PanelAccessible::willHide()
{
    if (!QAccessible::isActive() || !m_root)
        return;
    tellOfPanel(m_panel.canvas, QAccessible::ObjectHide);
    tellOfPanel(m_panel.canvas, QAccessible::ObjectDestroyed);
}

void PanelAccessible::keyboardChanged()
{
    if (!QAccessible::isActive())
        return;
    QAccessible::State active;
    active.active = true;
    QAccessibleStateChangeEvent event(&m_panel.canvas, active);
    QAccessible::updateAccessibility(&event);
    if (QGuiApplication::focusWindow() != &m_panel.canvas || !m_root)
        return;
    QAccessibleEvent focus(m_root->focused(), QAccessible::Focus);
    QAccessible::updateAccessibility(&focus);
}

} // namespace corvane
