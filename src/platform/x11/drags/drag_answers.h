#pragma once

#include "platform/base/lifetime.h"
#include "platform/x11/drags/x11_drag_forms.h"

#include <functional>
#include <optional>
#include <vector>

namespace corvane {

class IncrementalTransfers;

/// Answers what targets ask about one drag of ours: at once what is small, piece by piece what is
/// large, later what is still being made. What is large goes on when this is gone. The connection
/// and the transfers must outlive it.
class DragAnswers {
public:
    static constexpr std::size_t maximumWaiting = 64;
    /// Pairs of a MULTIPLE request; more are not answered.
    static constexpr std::uint32_t maximumPairs = 64;

    /// `began` is when the selection became ours, as targets are told who ask for it.
    DragAnswers(X11Connection &connection, IncrementalTransfers &transfers, X11DragForms forms,
                bool areFinal, xcb_timestamp_t began);

    /// The requestor has the whole of an answer, which holds the contents of these writers.
    std::function<void(xcb_window_t requestor, const QList<qsizetype> &holds)> onDelivered;
    /// Something of what was asked is over, delivered or not.
    std::function<void()> onProgress;

    void answer(const xcb_selection_request_event_t &request);
    /// Final forms, or none: then everything that was asked is refused, as is what will be.
    void formsAreReady(std::optional<X11DragForms> forms);
    bool isReady() const { return m_isReady; }
    /// Somebody waits for what is being made, or is still taking pieces.
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
