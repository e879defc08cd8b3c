#pragma once

#include "platform/drag_support.h"
#include "platform/x11/incremental_transfers.h"
#include "platform/x11/x11_connection.h"

#include <QAbstractNativeEventFilter>
#include <QHash>

namespace corvane {

/// What Qt leaves out for a source of drags on X11. Listens to the events that Qt receives, and
/// must be made after the application object. The connection and the queue must outlive it.
///
/// Qt answers only requests that carry the time of the drag or come from the window
/// that the drop was sent to. GTK 4 asks from another window, without a time, and for the list of
/// types first; unanswered, it takes nothing while Qt reports a copy. So all requests for what we
/// drag are answered here, from a copy made when the drag began; at once what is small, piece by
/// piece what is large, which goes on when that drag is over.
class X11DragSupport : public DragSupport, public QAbstractNativeEventFilter {
public:
    X11DragSupport(X11Connection &connection, MainQueue &queue);
    ~X11DragSupport() override;
    X11DragSupport(const X11DragSupport &) = delete;
    X11DragSupport &operator=(const X11DragSupport &) = delete;

    void dragWillBegin(const QMimeData &contents) override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    void readMessage(xcb_client_message_event_t &message);
    void answer(const xcb_selection_request_event_t &request);
    bool writeAnswer(const xcb_selection_request_event_t &request, xcb_atom_t property);

    X11Connection &m_connection;
    /// What we drag, by type.
    QHash<xcb_atom_t, QByteArray> m_contents;
    IncrementalTransfers m_transfers;
};

} // namespace corvane
