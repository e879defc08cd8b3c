#include "platform/qt/panel_drop_target.h"

#include "platform/panel_window.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_pasteboard.h"

#include <QDropEvent>

#include <exception>
#include <utility>

namespace corvane {

namespace {

/// Answers Copy; false where the source does not offer it.
bool acceptAsCopy(QDropEvent &event)
{
    event.setDropAction(Qt::CopyAction);
    if (event.dropAction() != Qt::CopyAction) {
        event.ignore();
        return false;
    }
    event.accept();
    return true;
}

/// What `ask` gives, or `fallback` when it throws: an exception that reached Qt's event loop would
/// end the process and leave the source waiting.
template<typename Result, typename Function>
Result guarded(Result fallback, Function ask)
{
    try {
        return ask();
    } catch (const std::exception &error) {
        qWarning("corvane: a drop failed: %s", error.what());
        return fallback;
    }
}

DraggingInfo infoFrom(const QDropEvent &event, double panelHeight, Pasteboard &pasteboard)
{
    return {pasteboard, qt_geometry::flipped(event.position(), panelHeight),
            event.source() != nullptr};
}

} // namespace

PanelDropTarget::PanelDropTarget(DropSupport *support)
    : m_support(support)
{
}

void PanelDropTarget::enter(QDragEnterEvent &event, double panelHeight)
{
    leave();
    m_state = State::Refused;
    event.ignore();
    if (!m_content)
        return;
    QtPasteboard pasteboard(event.mimeData(), m_support);
    const auto answer = guarded(DragOperation::None, [&] {
        return m_content->draggingEntered(infoFrom(event, panelHeight, pasteboard));
    });
    if (answer != DragOperation::None && acceptAsCopy(event))
        m_state = State::Accepted;
}

void PanelDropTarget::move(QDragMoveEvent &event, double panelHeight)
{
    event.ignore();
    if (m_state != State::Accepted || !m_content)
        return;
    QtPasteboard pasteboard(event.mimeData(), m_support);
    const auto answer = guarded(DragOperation::None, [&] {
        return m_content->draggingUpdated(infoFrom(event, panelHeight, pasteboard));
    });
    if (answer != DragOperation::None)
        acceptAsCopy(event);
}

void PanelDropTarget::drop(QDropEvent &event, double panelHeight)
{
    event.ignore();
    const State state = std::exchange(m_state, State::Outside);
    if (!m_content)
        return;
    if (state == State::Accepted) {
        QtPasteboard pasteboard(event.mimeData(), m_support);
        const bool isTaken = guarded(false, [&] {
            return m_content->performDragOperation(infoFrom(event, panelHeight, pasteboard));
        });
        if (isTaken)
            acceptAsCopy(event);
    }
    // It may have been taken away in the drop.
    if (m_content)
        m_content->draggingEnded();
}

void PanelDropTarget::leave()
{
    if (std::exchange(m_state, State::Outside) == State::Outside || !m_content)
        return;
    m_content->draggingExited();
    if (m_content)
        m_content->draggingEnded();
}

} // namespace corvane
