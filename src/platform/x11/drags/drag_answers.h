#pragma once

#include "platform/base/lifetime.h"
#include "platform/x11/drags/x11_drag_forms.h"

#include <functional>
#include <optional>
#include <vector>

namespace corvane {

class IncrementalTransfers;

/// Answers the selection requests of targets about one drag of ours: small contents at once, large
/// ones piece by piece, and contents that are still being made when they are ready. Transfers that
/// have begun go on after this is destroyed. The connection and the transfers must outlive it.
class DragAnswers {
public:
    /// Requests that wait for contents to be made; more are refused.
    static constexpr std::size_t maximumWaiting = 64;
    /// The most pairs of one MULTIPLE request; a longer one is refused.
    static constexpr std::uint32_t maximumPairs = 64;

    /// `areFinal` tells whether `forms` have their contents already. `began` is the time at which
    /// the selection became ours, the answer to TIMESTAMP.
    DragAnswers(X11Connection &connection, IncrementalTransfers &transfers, X11DragForms forms,
                bool areFinal, xcb_timestamp_t began);

    /// A requestor has got the whole of an answer; `holds` are the writers whose contents are in
    /// it.
    std::function<void(xcb_window_t requestor, const QList<qsizetype> &holds)> onDelivered;
    /// An incremental transfer has ended, completed or not, or the forms have become ready.
    std::function<void()> onProgress;

    void answer(const xcb_selection_request_event_t &request);
    /// The final forms; with none everything that waits, and all later requests, are refused.
    void formsAreReady(std::optional<X11DragForms> forms);
    bool isReady() const { return m_isReady; }
    /// Whether a requestor waits for contents that are being made, or is still taking pieces.
    bool isBusy() const { return !m_waiting.empty() || m_running > 0; }

private:
    bool isAboutContents(xcb_atom_t target);
    void answerNow(const xcb_selection_request_event_t &request, xcb_atom_t property);
    bool write(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
    bool writeContents(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
    bool writeMultiple(xcb_window_t requestor, xcb_atom_t property);
    void writeAtoms(xcb_window_t requestor, xcb_atom_t property, xcb_atom_t type,
                    const std::vector<xcb_atom_t> &atoms);

    X11Connection &m_connection;
    IncrementalTransfers &m_transfers;
    std::optional<X11DragForms> m_forms;
    bool m_isReady;
    xcb_timestamp_t m_began;
    std::vector<xcb_selection_request_event_t> m_waiting;
    int m_running = 0;
    Lifetime m_lifetime;
};

} // namespace corvane
