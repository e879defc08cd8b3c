#include "platform/x11/drags/incremental_transfers.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace corvane {

namespace {

qsizetype pieceThatFits(xcb_connection_t *connection)
{
    // `xcb_get_maximum_request_length` counts units of four bytes and includes the request's
    // header.
    constexpr qsizetype head = 64;
    const qsizetype longest = qsizetype{xcb_get_maximum_request_length(connection)} * 4 - head;
    return std::clamp(longest, IncrementalTransfers::wholeBytes, IncrementalTransfers::pieceBytes);
}

} // namespace

IncrementalTransfers::IncrementalTransfers(X11Connection &connection, MainQueue &queue)
    : m_connection(connection)
    , m_queue(queue)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
    , m_pieceBytes(pieceThatFits(connection.get()))
{
}

IncrementalTransfers::~IncrementalTransfers() = default;

bool IncrementalTransfers::begin(xcb_window_t reader, xcb_atom_t property, xcb_atom_t type,
                                 const QByteArray &bytes, Ended ended)
{
    // A reader that asks again for the same property does not take the old transfer's pieces any
    // more.
    endWhere([&](const Transfer &transfer) {
        return transfer.reader == reader && transfer.property == property;
    });
    // Without selecting events on the reader's window we would not hear when it takes a piece or is
    // destroyed.
    if (m_transfers.size() >= maximumTransfers || !listenTo(reader))
        return false;
    // The size is a hint to the reader, which may reserve memory for it.
    const auto size = static_cast<std::uint32_t>(
        std::min<qsizetype>(bytes.size(), std::numeric_limits<std::int32_t>::max()));
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, reader, property,
                        m_connection.atom("INCR"), 32, 1, &size);
    m_transfers.push_back(
        {reader, property, type, bytes, 0, m_queue.now(), false, std::move(ended)});
    if (!m_patienceTimer) {
        m_patienceTimer = m_queue.repeating(patience / 2, [this] {
            endWhere([now = m_queue.now()](const Transfer &transfer) {
                return now - transfer.lastProgress >= patience;
            });
        });
    }
    return true;
}

bool IncrementalTransfers::listenTo(xcb_window_t reader)
{
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    const auto asked = xcb_change_window_attributes_checked(m_connection.get(), reader,
                                                            XCB_CW_EVENT_MASK, &mask);
    return m_connection.outcomeOf({&asked, 1}) == X11Connection::Outcome::Done;
}

void IncrementalTransfers::handle(const xcb_generic_event_t &event)
{
    if (m_transfers.empty())
        return;
    const int type = event.response_type & 0x7f;
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        if (news.state == XCB_PROPERTY_DELETE)
            handlePropertyRemoved(news.window, news.atom);
    } else if (type == XCB_DESTROY_NOTIFY) {
        const auto &news = reinterpret_cast<const xcb_destroy_notify_event_t &>(event);
        endWhere([&](const Transfer &transfer) { return transfer.reader == news.window; });
    }
}

void IncrementalTransfers::handlePropertyRemoved(xcb_window_t reader, xcb_atom_t property)
{
    endWhere([&](Transfer &transfer) {
        return transfer.reader == reader && transfer.property == property && !sendPiece(transfer);
    });
}

bool IncrementalTransfers::sendPiece(Transfer &transfer)
{
    const qsizetype size = std::min(m_pieceBytes, transfer.bytes.size() - transfer.sent);
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, transfer.reader,
                        transfer.property, transfer.type, 8, static_cast<std::uint32_t>(size),
                        transfer.bytes.constData() + transfer.sent);
    transfer.sent += size;
    transfer.lastProgress = m_queue.now();
    transfer.isEndTold = size == 0;
    return size > 0;
}

/// Stops listening to the reader's window if no other transfer uses it.
void IncrementalTransfers::endQuietly(xcb_window_t reader)
{
    const bool isStillRead = std::ranges::any_of(
        m_transfers, [reader](const Transfer &other) { return other.reader == reader; });
    // Unchecked: the window may be gone, and that error does not matter.
    const std::uint32_t nothing = XCB_EVENT_MASK_NO_EVENT;
    if (!isStillRead)
        xcb_change_window_attributes(m_connection.get(), reader, XCB_CW_EVENT_MASK, &nothing);
}

template<typename Predicate>
void IncrementalTransfers::endWhere(Predicate isOver)
{
    std::list<Transfer> over;
    for (auto transfer = m_transfers.begin(); transfer != m_transfers.end();) {
        const auto next = std::next(transfer);
        if (isOver(*transfer))
            over.splice(over.end(), m_transfers, transfer);
        transfer = next;
    }
    for (const Transfer &transfer : over)
        endQuietly(transfer.reader);
    if (m_transfers.empty())
        m_patienceTimer.reset();
    m_connection.flush();
    // At the end, because the callback may begin another transfer.
    for (const Transfer &transfer : over) {
        // The empty piece is written after the reader has removed the last full one, so all were
        // taken.
        if (transfer.ended)
            transfer.ended(transfer.isEndTold ? End::AllTaken : End::Abandoned);
    }
}

} // namespace corvane
