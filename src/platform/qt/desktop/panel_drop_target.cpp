#include "platform/qt/desktop/panel_drop_target.h"

#include "platform/desktop/panel_window.h"
#include "platform/qt/pasteboard/qt_pasteboard.h"

#include <QDropEvent>

#include <algorithm>
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
        qWarning("[Corvane] A drop failed: %s", error.what());
        return fallback;
    }
}

DraggingInfo infoFrom(const QDropEvent &event, QPointF location, Pasteboard &pasteboard)
{
    return {pasteboard, location, event.source() != nullptr};
}

} // namespace

PanelDropTarget::PanelDropTarget(QWindow &window, DropSupport *support, DropFetch::Threads threads)
    : m_support(support)
    , m_threads(threads)
{
    if (m_support)
        m_receiving = m_support->addReceiver(window, *this);
}

PanelDropTarget::~PanelDropTarget() = default;

void PanelDropTarget::setContent(PanelContent *content)
{
    m_content = content;
    if (!content)
        m_awaited.clear();
}

/// The contents of a drag. Of another program's drag that the support handles, those that have been
/// fetched so far; otherwise Qt's, which fetches at each question.
std::unique_ptr<Pasteboard> PanelDropTarget::pasteboardOf(const QDropEvent &event) const
{
    const auto drag = m_support && !event.source() ? m_support->incomingDrag() : nullptr;
    if (!drag)
        return std::make_unique<QtPasteboard>(event.mimeData());
    const QStringList types = drag->types();
    auto pasteboard = std::make_unique<FetchedPasteboard>(types);
    for (const QString &type : addressTypes(types))
        pasteboard->setBytes(type, drag->fetched(type));
    return pasteboard;
}

void PanelDropTarget::enter(QDragEnterEvent &event, QPointF location)
{
    leave();
    m_state = State::Refused;
    event.ignore();
    if (!m_content)
        return;
    const auto pasteboard = pasteboardOf(event);
    const auto answer = guarded(DragOperation::None, [&] {
        return m_content->draggingEntered(infoFrom(event, location, *pasteboard));
    });
    m_location = location;
    if (answer != DragOperation::None && acceptAsCopy(event))
        m_state = State::Accepted;
}

void PanelDropTarget::move(QDragMoveEvent &event, QPointF location)
{
    event.ignore();
    if (m_state != State::Accepted || !m_content)
        return;
    m_location = location;
    const auto pasteboard = pasteboardOf(event);
    const auto answer = guarded(DragOperation::None, [&] {
        return m_content->draggingUpdated(infoFrom(event, location, *pasteboard));
    });
    if (answer != DragOperation::None)
        acceptAsCopy(event);
}

void PanelDropTarget::drop(QDropEvent &event, QPointF location)
{
    event.ignore();
    const State state = std::exchange(m_state, State::Outside);
    if (!m_content)
        return;
    if (state == State::Accepted) {
        QtPasteboard pasteboard(event.mimeData());
        const bool isTaken = guarded(false, [&] {
            return m_content->performDragOperation(infoFrom(event, location, pasteboard));
        });
        if (isTaken)
            acceptAsCopy(event);
    }
    // The content may have been removed during the drop.
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

bool PanelDropTarget::needsAddresses(const QStringList &types) const
{
    return m_content && m_content->needsAddresses(types);
}

QStringList PanelDropTarget::addressTypes(const QStringList &types) const
{
    return BytesPasteboard::addressTypes(types);
}

Subscription PanelDropTarget::fetchEarly(std::shared_ptr<IncomingDrag> drag,
                                         std::function<void()> done)
{
    // The drag keeps what it fetched. Where its source would write a file itself, that waits.
    const auto nowhere = [](const QString &) { return std::optional<QUrl>(); };
    auto fetch = std::make_shared<DropFetch>(std::move(drag), nowhere, m_threads);
    fetch->start([done = std::move(done)](FetchedPasteboard &) { done(); });
    return Subscription([fetch] {});
}

bool PanelDropTarget::takeDrop(std::shared_ptr<IncomingDrag> drop)
{
    if (m_state != State::Accepted || !m_content)
        return false;
    m_state = State::Outside;
    m_content->dropIsAwaited();
    if (!m_content)
        return false;
    fetch(std::move(drop));
    return true;
}

void PanelDropTarget::paste(const std::shared_ptr<IncomingDrag> &contents)
{
    if (!m_content || !m_content->takesPaste() || m_awaited.size() >= maximumAwaited)
        return;
    m_content->dropIsAwaited();
    if (m_content)
        fetch(contents);
}

void PanelDropTarget::paste(const QMimeData *contents)
{
    if (!m_content || !contents || !m_content->takesPaste())
        return;
    QtPasteboard pasteboard(contents);
    guarded(false, [&] { return m_content->performDragOperation({pasteboard, {}, false}); });
}

void PanelDropTarget::fetch(std::shared_ptr<IncomingDrag> drop)
{
    const auto findPlace = [this](const QString &name) {
        return guarded(std::optional<QUrl>(),
                       [&] { return m_content->placeForPromisedFile(name); });
    };
    auto fetch = std::make_unique<DropFetch>(std::move(drop), findPlace, m_threads);
    DropFetch &started = *m_awaited.emplace_back(std::move(fetch));
    started.start(
        [this, &started](FetchedPasteboard &pasteboard) { contentsArrived(&started, pasteboard); });
}

void PanelDropTarget::contentsArrived(DropFetch *fetch, FetchedPasteboard &pasteboard)
{
    const auto found = std::ranges::find(m_awaited, fetch, &std::unique_ptr<DropFetch>::get);
    // Kept alive until the source has been told, even if this target is destroyed meanwhile.
    const auto kept = std::move(*found);
    m_awaited.erase(found);
    const bool isTaken = guarded(false, [&] {
        return m_content->performDragOperation({pasteboard, m_location, false});
    });
    kept->drag().finish(isTaken);
    if (m_content && m_state == State::Outside)
        m_content->draggingEnded();
}

} // namespace corvane
