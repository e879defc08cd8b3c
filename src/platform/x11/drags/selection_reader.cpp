#include "platform/x11/drags/selection_reader.h"

#include <xcb/xfixes.h>

#include <algorithm>
#include <utility>

namespace corvane {

namespace {

xcb_window_t makeWindow(const X11Connection &connection, std::uint32_t events)
{
    const xcb_window_t window = xcb_generate_id(connection.get());
    xcb_create_window(connection.get(), XCB_COPY_FROM_PARENT, window, connection.root(), -1, -1, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK,
                      &events);
    return window;
}

bool exists(X11Connection &connection, xcb_window_t window)
{
    const auto reply = connection.reply<xcb_get_window_attributes_reply_t>(
        xcb_get_window_attributes(connection.get(), window));
    // A silent server has not said that it is gone.
    return reply || !connection.isAnswering();
}

} // namespace

SelectionReader::SelectionReader(X11Connection &connection, MainQueue &queue, const char *selection)
    : m_connection(connection)
    , m_queue(queue)
    , m_listener(
          connection.addListener([this](const xcb_generic_event_t &event) { handle(event); }))
    , m_selection(connection.atom(selection))
    , m_property(connection.atom("CORVANE_SELECTION"))
    , m_watch(makeWindow(connection, XCB_EVENT_MASK_NO_EVENT))
{
    if (m_connection.hasXFixes())
        xcb_xfixes_select_selection_input(
            m_connection.get(), m_watch, m_selection,
            XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    m_connection.flush();
}

SelectionReader::~SelectionReader()
{
    while (!m_reads.empty())
        drop(m_reads.begin());
    xcb_destroy_window(m_connection.get(), m_watch);
    m_connection.flush();
}

SelectionReader::Id SelectionReader::read(xcb_atom_t target, xcb_timestamp_t time,
                                          qsizetype maximumBytes, Done done)
{
    const xcb_window_t window = makeWindow(m_connection, XCB_EVENT_MASK_PROPERTY_CHANGE);
    const Id id = m_nextId++;
    const double now = m_queue.now();
    m_reads.push_back({id, window, owner(), maximumBytes, std::move(done), Stage::Asked, false,
                       QByteArray(), 0, now, now});
    xcb_convert_selection(m_connection.get(), window, m_selection, target, m_property, time);
    m_connection.flush();
    if (!m_patienceTimer)
        m_patienceTimer = m_queue.repeating(patience / 10, [this] { giveUpTheSilent(); });
    return id;
}

void SelectionReader::cancel(Id id)
{
    if (const auto read = find(id); read != m_reads.end())
        drop(read);
}

xcb_window_t SelectionReader::owner() const
{
    const auto reply = m_connection.reply<xcb_get_selection_owner_reply_t>(
        xcb_get_selection_owner(m_connection.get(), m_selection));
    return reply ? reply->owner : XCB_NONE;
}

void SelectionReader::handle(const xcb_generic_event_t &event)
{
    if (m_reads.empty())
        return;
    const int type = event.response_type & 0x7f;
    if (type == XCB_SELECTION_NOTIFY) {
        answered(reinterpret_cast<const xcb_selection_notify_event_t &>(event));
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        if (news.state == XCB_PROPERTY_NEW_VALUE && news.atom == m_property)
            propertySet(news.window);
    } else if (m_connection.isSelectionNotify(event)) {
        const auto &news = reinterpret_cast<const xcb_xfixes_selection_notify_event_t &>(event);
        if (news.window == m_watch && news.selection == m_selection)
            ownerEnded();
    }
}

void SelectionReader::answered(const xcb_selection_notify_event_t &notify)
{
    const auto read = std::ranges::find(m_reads, notify.requestor, &Read::window);
    if (read == m_reads.end() || read->stage != Stage::Asked || notify.selection != m_selection)
        return;
    if (notify.property != m_property) {
        finish(read, Outcome::Refused);
        return;
    }
    read->stage = Stage::Taking;
    read->lastProgress = m_queue.now();
    takeSliceLater(*read);
}

void SelectionReader::propertySet(xcb_window_t window)
{
    const auto read = std::ranges::find(m_reads, window, &Read::window);
    if (read == m_reads.end() || read->stage != Stage::Waiting)
        return;
    read->stage = Stage::Taking;
    read->lastProgress = m_queue.now();
    takeSliceLater(*read);
}

/// The selection's owner has ended, and with it perhaps the owners of some reads. A read that is
/// taking a piece goes on, because that piece may be all; other reads get nothing more.
void SelectionReader::ownerEnded()
{
    for (auto read = m_reads.begin(); read != m_reads.end();) {
        const auto next = std::next(read);
        if (!exists(m_connection, read->owner)) {
            if (read->stage == Stage::Taking)
                read->hasOwnerEnded = true;
            else
                finish(read, Outcome::Lost);
        }
        read = next;
    }
}

void SelectionReader::takeSliceLater(const Read &read)
{
    m_queue.async(m_lifetime.guard([this, id = read.id] { takeSlice(id); }));
}

void SelectionReader::takeSlice(Id id)
{
    const auto read = find(id);
    if (read == m_reads.end())
        return;
    // The property is deleted with its last byte, which tells the owner to send the next piece.
    const auto reply = m_connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(m_connection.get(), 1, read->window, m_property, XCB_GET_PROPERTY_TYPE_ANY,
                         read->sliceOffset / 4, sliceBytes / 4));
    if (!reply) {
        finish(read, Outcome::Lost);
        return;
    }
    if (reply->type == XCB_NONE && read->isIncremental) {
        // This event was about a piece that was taken together with the one before. The empty piece
        // at the end does have a type.
        waitForMore(read);
        return;
    }
    if (reply->type == m_connection.atom("INCR") && !read->isIncremental) {
        read->isIncremental = true;
        waitForMore(read);
        return;
    }
    if (!append(*read, *reply)) {
        const bool isTooLarge = read->bytes.size() > read->maximumBytes;
        finish(read, isTooLarge ? Outcome::TooLarge : Outcome::Arrived);
    } else if (reply->bytes_after > 0) {
        takeSliceLater(*read);
    } else {
        waitForMore(read);
    }
}

void SelectionReader::waitForMore(Position read)
{
    read->stage = Stage::Waiting;
    m_connection.flush();
    // The owner would have sent the next piece only now.
    if (read->hasOwnerEnded)
        finish(read, Outcome::Lost);
}

bool SelectionReader::append(Read &read, const xcb_get_property_reply_t &reply)
{
    const int size = xcb_get_property_value_length(&reply);
    read.bytes.append(static_cast<const char *>(xcb_get_property_value(&reply)), size);
    read.lastProgress = m_queue.now();
    if (read.bytes.size() > read.maximumBytes)
        return false;
    const bool isWholeProperty = reply.bytes_after == 0;
    const bool isEmpty = read.sliceOffset == 0 && size == 0;
    read.sliceOffset = isWholeProperty ? 0 : read.sliceOffset + sliceBytes;
    return !isWholeProperty || (read.isIncremental && !isEmpty);
}

void SelectionReader::giveUpTheSilent()
{
    const double now = m_queue.now();
    for (auto read = m_reads.begin(); read != m_reads.end();) {
        const auto next = std::next(read);
        if (now - read->lastProgress >= patience || now - read->begun >= longest)
            finish(read, Outcome::Lost);
        read = next;
    }
}

SelectionReader::Position SelectionReader::find(Id id)
{
    return std::ranges::find(m_reads, id, &Read::id);
}

void SelectionReader::finish(Position read, Outcome outcome)
{
    // Later, because `done` may start another read or destroy this.
    m_queue.async(
        m_lifetime.guard([done = std::move(read->done), outcome,
                          bytes = outcome == Outcome::Arrived ? read->bytes : QByteArray()] {
            done(outcome, bytes);
        }));
    drop(read);
}

void SelectionReader::drop(Position read)
{
    xcb_destroy_window(m_connection.get(), read->window);
    m_connection.flush();
    m_reads.erase(read);
    if (m_reads.empty())
        m_patienceTimer.reset();
}

} // namespace corvane
