#include "platform/x11/drags/drag_answers.h"

#include "platform/x11/drags/incremental_transfers.h"

#include <utility>

namespace corvane {

namespace {

/// The property for the answer. Old programs name none and mean one that is called like the target.
xcb_atom_t propertyOf(const xcb_selection_request_event_t &request)
{
    return request.property != XCB_NONE ? request.property : request.target;
}

} // namespace

DragAnswers::DragAnswers(X11Connection &connection, IncrementalTransfers &transfers,
                         X11DragForms forms, bool areFinal, xcb_timestamp_t began)
    : m_connection(connection)
    , m_transfers(transfers)
    , m_forms(std::move(forms))
    , m_isReady(areFinal)
    , m_began(began)
{
}

void DragAnswers::answer(const xcb_selection_request_event_t &request)
{
    if (m_isReady || !isAboutContents(request.target))
        answerNow(request, propertyOf(request));
    else if (m_waiting.size() < maximumWaiting)
        m_waiting.push_back(request);
    else
        answerNow(request, XCB_NONE);
}

void DragAnswers::formsAreReady(std::optional<X11DragForms> forms)
{
    if (std::exchange(m_isReady, true))
        return;
    m_forms = std::move(forms);
    for (const auto &request : std::exchange(m_waiting, {}))
        answerNow(request, propertyOf(request));
    if (onProgress)
        onProgress();
}

bool DragAnswers::isAboutContents(xcb_atom_t target)
{
    return target != m_connection.atom("TARGETS") && target != m_connection.atom("TIMESTAMP");
}

void DragAnswers::answerNow(const xcb_selection_request_event_t &request, xcb_atom_t property)
{
    const bool isWritten
        = property != XCB_NONE && write(request.requestor, request.target, property);
    xcb_selection_notify_event_t notify = {};
    notify.response_type = XCB_SELECTION_NOTIFY;
    notify.time = request.time;
    notify.requestor = request.requestor;
    notify.selection = request.selection;
    notify.target = request.target;
    notify.property = isWritten ? property : xcb_atom_t{XCB_NONE};
    xcb_send_event(m_connection.get(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char *>(&notify));
    m_connection.flush();
}

bool DragAnswers::write(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property)
{
    if (target == m_connection.atom("TARGETS")) {
        std::vector<xcb_atom_t> targets = m_forms ? m_forms->targets() : std::vector<xcb_atom_t>();
        for (const char *name : {"TARGETS", "TIMESTAMP", "MULTIPLE"})
            targets.push_back(m_connection.atom(name));
        writeAtoms(requestor, property, XCB_ATOM_ATOM, targets);
        return true;
    }
    if (target == m_connection.atom("TIMESTAMP")) {
        writeAtoms(requestor, property, XCB_ATOM_INTEGER, {m_began});
        return true;
    }
    if (target == m_connection.atom("MULTIPLE"))
        return writeMultiple(requestor, property);
    return writeContents(requestor, target, property);
}

void DragAnswers::writeAtoms(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type,
                             const std::vector<xcb_atom_t> &atoms)
{
    xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, requestor, property, type, 32,
                        static_cast<std::uint32_t>(atoms.size()), atoms.data());
}

bool DragAnswers::writeContents(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property)
{
    const auto answer = m_forms ? m_forms->answerTo(target) : std::nullopt;
    if (!answer)
        return false;
    if (answer->bytes.size() <= IncrementalTransfers::wholeBytes) {
        xcb_change_property(m_connection.get(), XCB_PROP_MODE_REPLACE, requestor, property,
                            answer->type, 8, static_cast<std::uint32_t>(answer->bytes.size()),
                            answer->bytes.constData());
        if (onDelivered)
            onDelivered(requestor, answer->holds);
        return true;
    }
    const auto ended
        = m_lifetime.guard([this, requestor, holds = answer->holds](IncrementalTransfers::End end) {
              --m_running;
              if (end == IncrementalTransfers::End::AllTaken && onDelivered)
                  onDelivered(requestor, holds);
              if (onProgress)
                  onProgress();
          });
    ++m_running;
    if (m_transfers.begin(requestor, property, answer->type, answer->bytes, ended))
        return true;
    --m_running;
    return false;
}

/// Answers a MULTIPLE request: the property lists pairs of a target and the property for its
/// answer. Targets of pairs that are not answered are replaced by None in the list.
bool DragAnswers::writeMultiple(xcb_window_t requestor, xcb_atom_t property)
{
    const auto reply = m_connection.reply<xcb_get_property_reply_t>(
        xcb_get_property(m_connection.get(), 0, requestor, property, XCB_GET_PROPERTY_TYPE_ANY, 0,
                         maximumPairs * 2));
    if (!reply || reply->format != 32 || reply->bytes_after > 0)
        return false;
    const auto *const first = static_cast<const xcb_atom_t *>(xcb_get_property_value(reply.get()));
    std::vector<xcb_atom_t> atoms(first, first + reply->value_len);
    const xcb_atom_t multiple = m_connection.atom("MULTIPLE");
    for (std::size_t i = 0; i + 1 < atoms.size(); i += 2) {
        const bool isAnswered = atoms[i] != multiple && atoms[i + 1] != XCB_NONE
            && write(requestor, atoms[i], atoms[i + 1]);
        if (!isAnswered)
            atoms[i] = XCB_NONE;
    }
    writeAtoms(requestor, property, reply->type, atoms);
    return true;
}

} // namespace corvane
