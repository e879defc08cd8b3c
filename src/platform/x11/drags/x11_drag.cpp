#include "platform/x11/drags/x11_drag.h"

#include <utility>

namespace corvane {

namespace {

/// From this version of the XDND protocol on, XdndFinished says whether the drop succeeded, and
/// with which action.
constexpr std::uint32_t versionWithResult = 5;
constexpr std::uint32_t succeeded = 1;

void mark(std::vector<bool> &places, const QList<qsizetype> &added)
{
    for (const qsizetype place : added) {
        const auto index = static_cast<std::size_t>(place);
        if (index >= places.size())
            places.resize(index + 1);
        places[index] = true;
    }
}

} // namespace

X11Drag::X11Drag(X11Connection &connection, MainQueue &queue, IncrementalTransfers &transfers,
                 PasteboardForms forms, bool areFinal, xcb_timestamp_t began)
    : m_connection(connection)
    , m_queue(queue)
    , m_began(began)
    , m_lastSign(queue.now())
    , m_answers(connection, transfers, X11DragForms(connection, std::move(forms)), areFinal, began)
{
    m_answers.onDelivered = [this](xcb_window_t requestor, const QList<qsizetype> &holds) {
        delivered(requestor, holds);
    };
    m_answers.onProgress = [this] {
        noteSign();
        endIfOver();
    };
}

std::uint32_t X11Drag::programOf(xcb_window_t window) const
{
    return window & ~xcb_get_setup(m_connection.get())->resource_id_mask;
}

void X11Drag::delivered(xcb_window_t requestor, const QList<qsizetype> &holds)
{
    if (m_isWaiting) {
        // After the drop only the target's side asks, so any requestor counts as the target.
        mark(m_takenAfterDrop, holds);
        if (m_askedAfterDrop.size() < maximumPrograms)
            m_askedAfterDrop.insert(programOf(requestor));
        return;
    }
    const std::uint32_t program = programOf(requestor);
    if (m_takenByProgram.contains(program) || m_takenByProgram.size() < maximumPrograms)
        mark(m_takenByProgram[program], holds);
}

X11Drag::Target X11Drag::targetAnswered(const xcb_client_message_event_t &status)
{
    const bool isUnseen = m_isWaiting && m_target == XCB_NONE;
    if (m_isWaiting && !isUnseen)
        return Target::There;
    m_target = status.data.data32[0];
    return isUnseen ? watchTarget() : Target::There;
}

std::optional<std::uint32_t> X11Drag::cardinal(xcb_window_t window, const char *property)
{
    const auto reply = m_connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(m_connection.get(), 0, window, m_connection.atom(property),
                         XCB_GET_PROPERTY_TYPE_ANY, 0, 1));
    if (!reply || reply->format != 32 || reply->value_len == 0)
        return std::nullopt;
    return *static_cast<const std::uint32_t *>(xcb_get_property_value(reply.get()));
}

X11Drag::Target X11Drag::wasDropped()
{
    noteSign();
    m_isWaiting = true;
    if (m_target == XCB_NONE)
        return Target::Unseen;
    return watchTarget();
}

X11Drag::Target X11Drag::watchTarget()
{
    const xcb_window_t proxy = cardinal(m_target, "XdndProxy").value_or(m_target);
    m_saysHowItEnded
        = cardinal(proxy, "XdndAware").value_or(versionWithResult) >= versionWithResult;
    if (proxy != m_target)
        m_watches.emplace_back(proxy);
    return m_watches.emplace_back(m_target).exists() ? Target::There : Target::Gone;
}

bool X11Drag::wasDroppedOn(xcb_window_t window) const
{
    return m_isWaiting && window != XCB_NONE && window == m_target;
}

bool X11Drag::isOverProgramOf(xcb_window_t window) const
{
    return m_target != XCB_NONE && programOf(window) == programOf(m_target);
}

bool X11Drag::mayBeFinishedBy(xcb_window_t window) const
{
    const std::uint32_t program = programOf(window);
    const bool hasFetched = m_askedAfterDrop.contains(program)
        || (m_target == XCB_NONE && m_takenByProgram.contains(program));
    return m_isWaiting && (isOverProgramOf(window) || hasFetched);
}

bool X11Drag::isSuccess(const xcb_client_message_event_t &finished) const
{
    const std::uint32_t *data = finished.data.data32;
    return !m_saysHowItEnded || ((data[1] & succeeded) != 0 && data[2] != XCB_NONE);
}

void X11Drag::targetFinished(const xcb_client_message_event_t &finished)
{
    if (!m_isWaiting || m_finish)
        return;
    const std::uint32_t *data = finished.data.data32;
    m_finishedProgram = programOf(data[0]);
    if (!isSuccess(finished)) {
        end(DragOperation::None);
        return;
    }
    // Some targets report a move, which was not offered; they have the contents, so it counts as a
    // copy.
    const bool isLink = m_saysHowItEnded && data[2] == m_connection.atom("XdndActionLink");
    m_finish = isLink ? DragOperation::Link : DragOperation::Copy;
    endIfOver();
}

void X11Drag::windowIsGone(xcb_window_t window)
{
    if (!m_isWaiting || m_finish)
        return;
    for (const WindowEndWatch &watch : m_watches) {
        if (watch.window() == window) {
            end(DragOperation::None);
            return;
        }
    }
}

void X11Drag::giveUp()
{
    if (m_isWaiting)
        end(DragOperation::None);
}

void X11Drag::endIfOver()
{
    // Some targets send XdndFinished before they have taken the last pieces.
    if (m_isWaiting && m_finish && !m_answers.isBusy())
        end(*m_finish);
}

QList<qsizetype> X11Drag::taken() const
{
    Places all = m_takenAfterDrop;
    // By the window that finished, not by the one that accepted last: the pointer may have left
    // that one before the drop.
    const auto byProgram = m_takenByProgram.find(m_finishedProgram);
    for (std::size_t i = 0; byProgram != m_takenByProgram.end() && i < byProgram->second.size();
         ++i) {
        if (byProgram->second[i])
            mark(all, {static_cast<qsizetype>(i)});
    }
    QList<qsizetype> places;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (all[i])
            places.append(static_cast<qsizetype>(i));
    }
    return places;
}

void X11Drag::end(DragOperation operation)
{
    m_isWaiting = false;
    m_watches.clear();
    DragOutEnd result{operation, {}, true};
    if (operation != DragOperation::None)
        result.taken = taken();
    if (const auto tell = std::exchange(onEnd, {}))
        tell(result);
}

} // namespace corvane
