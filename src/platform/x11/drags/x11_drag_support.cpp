#include "platform/x11/drags/x11_drag_support.h"

#include "platform/base/checked_math.h"
#include "platform/desktop/panel_window.h"

#include <QCoreApplication>

#include <xcb/xinput.h>

#include <algorithm>
#include <utility>
#include <vector>

namespace corvane {

namespace {

/// Whether a time of the server is not before another one. Times wrap around every 49 days, so the
/// distance decides.
bool isNotBefore(xcb_timestamp_t time, xcb_timestamp_t other)
{
    constexpr xcb_timestamp_t half = 0x80000000;
    return time - other < half;
}

} // namespace

X11DragSupport::X11DragSupport(X11Connection &connection, MainQueue &queue, double patience)
    : m_connection(connection)
    , m_queue(queue)
    , m_patience(patience)
    , m_transfers(connection, queue)
{
    QCoreApplication::instance()->installNativeEventFilter(this);
}

X11DragSupport::~X11DragSupport()
{
    if (auto *application = QCoreApplication::instance())
        application->removeNativeEventFilter(this);
}

X11Drag *X11DragSupport::find(DragId drag)
{
    const auto found = m_drags.find(drag);
    return found == m_drags.end() ? nullptr : found->second.get();
}

DragSupport::DragId X11DragSupport::dragWillBegin(PasteboardForms forms, bool areFinal)
{
    if (auto *const previous = latest(); previous && !previous->isWaiting())
        forget(m_lastId);
    m_lastId = checkedAdd(m_lastId, 1);
    m_hasSelection = true;
    m_drags[m_lastId] = std::make_unique<X11Drag>(m_connection, m_queue, m_transfers,
                                                  std::move(forms), areFinal, m_time);
    return m_lastId;
}

void X11DragSupport::formsAreReady(DragId drag, std::optional<PasteboardForms> forms)
{
    auto *const found = find(drag);
    if (!found)
        return;
    std::optional<X11DragForms> ready;
    if (forms)
        ready.emplace(m_connection, std::move(*forms));
    found->answers().formsAreReady(std::move(ready));
}

void X11DragSupport::dragWasDropped(DragId drag, std::function<void(const DragOutEnd &)> ended)
{
    auto *const found = find(drag);
    if (!found) {
        m_queue.async([ended = std::move(ended)] { ended({}); });
        return;
    }
    const auto target = found->wasDropped();
    found->onEnd = [this, drag, ended = std::move(ended)](const DragOutEnd &end) {
        if (!isCurrent(drag) || !m_hasSelection)
            forget(drag);
        ended(end);
    };
    // Messages that came before the window's only drop are not about it.
    if (dropsAwaiting(found->target()).size() == 1)
        m_words.erase(found->target());
    watchTheClock();
    if (target == X11Drag::Target::Gone)
        awaitLastWords(drag);
}

void X11DragSupport::awaitLastWords(DragId drag)
{
    m_queue.asyncAfter(lastWords, m_lifetime.guard([this, drag] {
        if (auto *const silent = find(drag))
            silent->giveUp();
    }));
}

void X11DragSupport::dragCameToNothing(DragId drag)
{
    forget(drag);
}

void X11DragSupport::forget(DragId drag)
{
    const auto found = m_drags.find(drag);
    if (found == m_drags.end())
        return;
    const std::shared_ptr<X11Drag> gone = std::move(found->second);
    m_drags.erase(found);
    // Requests that still wait for contents are refused.
    gone->answers().formsAreReady(std::nullopt);
    // Destroyed later: the call may come from the drag's own `onEnd`.
    m_queue.async([gone] {});
}

bool X11DragSupport::nativeEventFilter(const QByteArray &eventType, void *message, qintptr *)
{
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto *event = static_cast<const xcb_generic_event_t *>(message);
    switch (event->response_type & 0x7f) {
    case XCB_CLIENT_MESSAGE:
        readMessage(*static_cast<xcb_client_message_event_t *>(message));
        return false;
    case XCB_DESTROY_NOTIFY:
        windowIsGone(static_cast<const xcb_destroy_notify_event_t *>(message)->window);
        return false;
    case XCB_SELECTION_CLEAR: {
        const auto &clear = *static_cast<const xcb_selection_clear_event_t *>(message);
        if (clear.selection == m_connection.atom("XdndSelection"))
            lostSelection(clear.time);
        return false;
    }
    case XCB_SELECTION_REQUEST:
        return answer(*static_cast<const xcb_selection_request_event_t *>(message));
    default:
        noteTime(*event);
        return false;
    }
}

void X11DragSupport::noteTime(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    if (type >= XCB_KEY_PRESS && type <= XCB_MOTION_NOTIFY) {
        m_time = reinterpret_cast<const xcb_button_press_event_t &>(event).time;
    } else if (type == XCB_GE_GENERIC) {
        const auto &input = reinterpret_cast<const xcb_input_button_press_event_t &>(event);
        if (input.extension == m_connection.xinputOpcode()
            && input.event_type >= XCB_INPUT_KEY_PRESS && input.event_type <= XCB_INPUT_MOTION)
            m_time = input.time;
    }
}

void X11DragSupport::readMessage(xcb_client_message_event_t &message)
{
    if (message.format != 32)
        return;
    if (message.type == m_connection.atom("XdndStatus")) {
        // Qt takes every non-zero flag as consent, also the wish for further positions, and would
        // drop on a target that refuses.
        constexpr std::uint32_t accepts = 1;
        // A refusal does not change the drag's target: a window that the pointer has left may still
        // send one.
        if ((message.data.data32[1] & accepts) == 0)
            message.data.data32[1] = 0;
        else if (auto *const drag = find(m_lastId);
                 drag && drag->targetAnswered(message) == X11Drag::Target::Gone)
            awaitLastWords(m_lastId);
    } else if (message.type == m_connection.atom("XdndFinished")) {
        finished(message);
    }
}

void X11DragSupport::finished(const xcb_client_message_event_t &message)
{
    const xcb_window_t by = message.data.data32[0];
    // A late message about a drop that was given up. It must not end another drop.
    if (const auto late = std::ranges::find(m_givenUp, by); late != m_givenUp.end()) {
        m_givenUp.erase(late);
        return;
    }
    if (const auto meant = dropsAwaiting(by); !meant.empty()) {
        finishedOneOf(meant, message);
        return;
    }
    std::vector<X11Drag *> waiting;
    for (const auto &[id, drag] : m_drags) {
        if (drag->isWaiting())
            waiting.push_back(drag.get());
    }
    // From another window of the target. Whether contents were taken still decides.
    if (waiting.size() == 1 && waiting.front()->mayBeFinishedBy(by))
        waiting.front()->targetFinished(message);
}

std::vector<DragSupport::DragId> X11DragSupport::dropsAwaiting(xcb_window_t window) const
{
    std::vector<DragId> drops;
    for (const auto &[id, drag] : m_drags) {
        if (drag->awaitsWordOf(window))
            drops.push_back(id);
    }
    return drops;
}

void X11DragSupport::finishedOneOf(const std::vector<DragId> &drops,
                                   const xcb_client_message_event_t &message)
{
    const xcb_window_t by = message.data.data32[0];
    auto &words = m_words[by];
    words.push_back(message);
    for (const DragId drop : drops)
        find(drop)->noteSign();
    if (words.size() < drops.size())
        return;
    const auto said = std::move(m_words.extract(by).mapped());
    const bool wentWell = std::ranges::all_of(
        said, [&](const auto &word) { return find(drops.front())->isSuccess(word); });
    // They do not say which drop was only linked to: all count as linked if one was.
    const xcb_atom_t linked = m_connection.atom("XdndActionLink");
    const auto link = std::ranges::find_if(
        said, [linked](const auto &word) { return word.data.data32[2] == linked; });
    const Lifetime::Token life = m_lifetime.token();
    for (std::size_t i = 0; i < drops.size() && !life.isOver(); ++i) {
        auto *const drag = find(drops[i]);
        if (drag && wentWell)
            drag->targetFinished(link == said.end() ? said[i] : *link);
        else if (drag)
            drag->giveUp();
    }
}

void X11DragSupport::windowIsGone(xcb_window_t window)
{
    m_words.erase(window);
    std::vector<DragId> ids;
    for (const auto &[id, drag] : m_drags)
        ids.push_back(id);
    for (const DragId id : ids) {
        if (auto *const drag = find(id))
            drag->windowIsGone(window);
    }
}

/// Another program has started a drag: only targets of earlier drops will ask for ours.
void X11DragSupport::lostSelection(xcb_timestamp_t time)
{
    auto *const drag = find(m_lastId);
    // The loss was before the latest drag took the selection again.
    if (drag && !isNotBefore(time, drag->began()))
        return;
    m_hasSelection = false;
    if (drag && !drag->isWaiting())
        forget(m_lastId);
}

X11Drag *X11DragSupport::dragFor(const xcb_selection_request_event_t &request)
{
    if (m_drags.empty())
        return nullptr;
    if (request.time == XCB_CURRENT_TIME) {
        // The newest drag over or dropped on that program; earlier ones were fetched before.
        const auto over = std::find_if(m_drags.rbegin(), m_drags.rend(), [&](const auto &entry) {
            return entry.second->isOverProgramOf(request.requestor);
        });
        return over == m_drags.rend() ? latest() : over->second.get();
    }
    const auto meant = std::find_if(m_drags.rbegin(), m_drags.rend(), [&](const auto &entry) {
        return isNotBefore(request.time, entry.second->began());
    });
    return meant == m_drags.rend() ? m_drags.begin()->second.get() : meant->second.get();
}

bool X11DragSupport::answer(const xcb_selection_request_event_t &request)
{
    if (request.selection != m_connection.atom("XdndSelection"))
        return false;
    auto *const drag = dragFor(request);
    if (!drag)
        return false;
    drag->noteSign();
    drag->answers().answer(request);
    if (!drag->answers().isReady())
        watchTheClock();
    return true;
}

void X11DragSupport::giveUp(X11Drag &drag)
{
    const xcb_window_t target = drag.target();
    if (!drag.awaitsWordOf(target)) {
        drag.giveUp();
        return;
    }
    const std::vector<DragId> drops = dropsAwaiting(target);
    const bool isAtWork = std::ranges::any_of(drops, [this](DragId drop) {
        const DragAnswers &answers = find(drop)->answers();
        return answers.isBusy() || !answers.isReady();
    });
    // The target has finished one drop and is still fetching another's contents.
    if (isAtWork && m_words.contains(target)) {
        drag.noteSign();
        return;
    }
    // Messages that have come may be about any of the drops, so all of them are given up.
    const auto said = m_words.extract(target);
    const std::size_t known = said ? said.mapped().size() : 0;
    const std::size_t missing = known > 0 ? drops.size() - known : 1;
    m_givenUp.insert(m_givenUp.end(), missing, target);
    while (m_givenUp.size() > maximumGivenUp)
        m_givenUp.pop_front();
    drag.giveUp();
    if (known == 0)
        return;
    for (const DragId drop : drops) {
        if (auto *const other = find(drop))
            other->giveUp();
    }
}

void X11DragSupport::watchTheClock()
{
    if (!m_timer)
        m_timer = m_queue.repeating(m_patience / 4, [this] { lookAtTheClock(); });
}

void X11DragSupport::lookAtTheClock()
{
    const double now = m_queue.now();
    std::vector<DragId> ids;
    for (const auto &[id, drag] : m_drags)
        ids.push_back(id);
    bool isAnybodyWaiting = false;
    for (const DragId id : ids) {
        auto *drag = find(id);
        if (!drag)
            continue;
        const bool isMade = drag->answers().isReady();
        if (!isMade && now - drag->lastSign() >= makingPatience)
            drag->answers().formsAreReady(std::nullopt);
        else if (isMade && !drag->answers().isBusy() && now - drag->lastSign() >= m_patience)
            giveUp(*drag);
        drag = find(id);
        isAnybodyWaiting
            = isAnybodyWaiting || (drag && (drag->isWaiting() || !drag->answers().isReady()));
    }
    if (!isAnybodyWaiting)
        m_timer.reset();
}

} // namespace corvane
