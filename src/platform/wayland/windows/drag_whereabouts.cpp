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
    : ScreenSearch(queue, screens)
    , m_connection(connection)
    , m_covered(connection)
{
}

DragWhereabouts::~DragWhereabouts() = default;

bool DragWhereabouts::begin()
{
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
    queue().async(search().guard([this] { awaitMove(); }));
    return true;
}

void DragWhereabouts::end()
{
    m_areShown.reset();
    m_covered.uncover();
}

void DragWhereabouts::awaitMove()
{
    if (m_connection.display())
        m_areShown = std::make_unique<HandledMark>(m_connection.display(),
                                                   [this] { giveUpAfter(patience); });
    else
        giveUpAfter(patience);
}

/// Later: a window is just being told of it.
void DragWhereabouts::reached(const QScreen &where)
{
    const auto attached = screens().screens();
    const auto reached = std::ranges::find_if(
        attached, [&where](const ScreenPointer &one) { return toolkitScreen(*one) == &where; });
    if (reached != attached.end())
        queue().async(search().guard([this, screen = *reached] { found(screen); }));
}

} // namespace corvane
