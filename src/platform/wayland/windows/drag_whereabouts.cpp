#include "platform/wayland/windows/drag_whereabouts.h"

#include "platform/base/main_queue.h"
#include "platform/wayland/base/handled_mark.h"
#include "platform/wayland/base/wayland_connection.h"
#include "platform/wayland/windows/toolkit_screen.h"

#include <QEvent>
#include <QScreen>

#include <algorithm>

namespace corvane {

DragWhereabouts::DragWhereabouts(WaylandConnection &connection, MainQueue &queue,
                                 const Screens &screens)
    : m_connection(connection)
    , m_queue(queue)
    , m_screens(screens)
    , m_covered(connection)
{
}

DragWhereabouts::~DragWhereabouts() = default;

void DragWhereabouts::find()
{
    if (m_covered.areCovered())
        return;
    const auto attached = m_screens.screens();
    if (attached.size() < 2) {
        found(attached.empty() ? nullptr : attached.front());
        return;
    }
    m_covered.cover(LayerSurface::Layer::Overlay, [this](QScreen &where, const QEvent &event) {
        switch (event.type()) {
        case QEvent::DragEnter:
        case QEvent::Enter:
        case QEvent::MouseMove:
            reached(where);
            break;
        default:
            break;
        }
    });
    // When they are painted, without which there is nothing to move on.
    m_queue.async(m_search.guard([this] { awaitMove(); }));
}

void DragWhereabouts::awaitMove()
{
    if (!m_connection.display()) {
        giveUpLater();
        return;
    }
    m_areShown = std::make_unique<HandledMark>(m_connection.display(), [this] { giveUpLater(); });
}

void DragWhereabouts::giveUpLater()
{
    m_queue.asyncAfter(patience, m_search.guard([this] { found(nullptr); }));
}

/// Later: a window is just being told of it.
void DragWhereabouts::reached(const QScreen &where)
{
    const auto attached = m_screens.screens();
    const auto reached = std::ranges::find_if(
        attached, [&where](const ScreenPointer &one) { return toolkitScreen(*one) == &where; });
    if (reached != attached.end())
        m_queue.async(m_search.guard([this, screen = *reached] { found(screen); }));
}

void DragWhereabouts::found(const ScreenPointer &screen)
{
    m_search.restart();
    m_areShown.reset();
    m_covered.uncover();
    if (onFound)
        onFound(screen);
}

} // namespace corvane
