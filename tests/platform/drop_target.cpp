#include "platform/drop_target.h"

#include <cstring>

namespace corvane::test {

DropTarget::DropTarget(const QRect &frame)
    : X11Client(frame)
    , m_asker(xcb_generate_id(connection()))
    , m_reader(connection(), m_asker, atom("GIVEN"), atom("INCR"))
{
    const std::uint32_t mask = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(connection(), XCB_COPY_FROM_PARENT, m_asker, m_server.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &mask);
    startThread();
}

std::optional<QByteArray> DropTarget::received(const QByteArray &type)
{
    const std::lock_guard lock(m_mutex);
    return m_received.value(type);
}

bool DropTarget::isOver()
{
    const std::lock_guard lock(m_mutex);
    return m_positions > 1;
}

bool DropTarget::hasFinished()
{
    const std::lock_guard lock(m_mutex);
    return m_hasFinished;
}

QList<QByteArray> DropTarget::targets()
{
    const std::lock_guard lock(m_mutex);
    return m_targets;
}

QList<QByteArray> DropTarget::actions()
{
    const std::lock_guard lock(m_mutex);
    return m_actions;
}

QList<QByteArray> DropTarget::announced()
{
    const std::lock_guard lock(m_mutex);
    return m_announced;
}

void DropTarget::closeAsker()
{
    xcb_destroy_window(connection(), m_asker);
    xcb_flush(connection());
}

QList<QByteArray> DropTarget::atomNames(const QByteArray &atoms)
{
    QList<QByteArray> names;
    for (qsizetype i = 0; i + 4 <= atoms.size(); i += 4) {
        xcb_atom_t each = e2e::noAtom;
        std::memcpy(&each, atoms.constData() + i, sizeof each);
        names << nameOf(each);
    }
    return names;
}

void DropTarget::handle(const xcb_generic_event_t &event)
{
    const int type = event.response_type & 0x7f;
    const std::lock_guard lock(m_mutex);
    if (type == XCB_SELECTION_NOTIFY) {
        const auto &notify = reinterpret_cast<const xcb_selection_notify_event_t &>(event);
        if (notify.property != e2e::noAtom)
            takeGiven();
        else
            ask();
    } else if (type == XCB_PROPERTY_NOTIFY) {
        const auto &news = reinterpret_cast<const xcb_property_notify_event_t &>(event);
        const bool isPiece = news.window == m_asker && news.state == XCB_PROPERTY_NEW_VALUE;
        if (isPiece && m_reader.isWaiting() && !m_hasFinished)
            takeGiven();
    } else if (type == XCB_CLIENT_MESSAGE) {
        handleMessage(reinterpret_cast<const xcb_client_message_event_t &>(event));
    }
}

void DropTarget::handleMessage(const xcb_client_message_event_t &message)
{
    if (message.type == atom("XdndEnter")) {
        m_source = message.data.data32[0];
        m_positions = 0;
        m_actions = atomNames(m_server.property(m_source, "XdndActionList"));
        m_announced = atomNames(m_server.property(m_source, "XdndTypeList"));
    } else if (message.type == atom("XdndPosition")) {
        ++m_positions;
        if (hesitates)
            queueMessage(m_source, "XdndStatus", {window(), 0, 0, 0, e2e::noAtom});
        sendMessage(m_source, "XdndStatus",
                    {window(), accepts ? 3U : 2U, 0, 0,
                     accepts ? atom("XdndActionCopy") : xcb_atom_t{e2e::noAtom}});
    } else if (message.type == atom("XdndDrop")) {
        m_next = 0;
        if (wantsAllThatIsAnnounced)
            wanted = m_announced;
        wanted.prepend("TARGETS");
        ask();
    }
}

void DropTarget::takeGiven()
{
    const auto bytes = m_reader.take();
    if (m_reader.isWaiting() && finish == Finish::InTheMiddle)
        sayHowItEnded();
    if (!bytes)
        return;
    if (m_asked == "TARGETS")
        m_targets = atomNames(*bytes);
    m_received[m_asked] = *bytes;
    ask();
}

void DropTarget::ask()
{
    if (m_next < wanted.size()) {
        m_asked = wanted[m_next++];
        xcb_convert_selection(connection(), m_asker, atom("XdndSelection"), atom(m_asked),
                              atom("GIVEN"), XCB_CURRENT_TIME);
        return;
    }
    sayHowItEnded();
}

void DropTarget::sayHowItEnded()
{
    const bool isWell = finish != Finish::Failed;
    if (finish == Finish::Dies) {
        xcb_destroy_window(connection(), window());
        xcb_flush(connection());
    } else if (finish != Finish::Never) {
        sendMessage(m_source, "XdndFinished",
                    {window(), isWell ? 1U : 0U,
                     isWell ? atom("XdndActionCopy") : xcb_atom_t{e2e::noAtom}, 0, 0});
    }
    m_hasFinished = true;
}

} // namespace corvane::test
