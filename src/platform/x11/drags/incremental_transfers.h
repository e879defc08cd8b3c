#pragma once

#include "platform/base/main_queue.h"
#include "platform/x11/base/x11_connection.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <list>

namespace corvane {

/// Hands other programs what is too large for one request, piece by piece.
///
///     begin: the property says how much is coming
///     the reader removes the property --> the next piece is put into it
///     all pieces taken                --> an empty one says so, and the transfer is over
///
/// A transfer also ends, and lets go of its contents, when the reader's window is gone, when the
/// reader takes nothing for a while, or when it asks anew for the same property. Each holds the
/// bytes that it was begun with, shared and not copied, so it depends on no drag. A clock runs only
/// while a transfer does. The connection and the queue must outlive it.
class IncrementalTransfers {
public:
    /// What one request carries on every server. Whatever is larger should come here.
    static constexpr qsizetype wholeBytes = 192LL * 1024;
    /// Larger than that where the server lets us: some readers copy all that they have at each
    /// piece, and give up after a few seconds in all.
    static constexpr qsizetype pieceBytes = 1024LL * 1024;
    static constexpr std::size_t maximumTransfers = 32;
    /// Seconds without a piece being taken after which a reader counts as gone.
    static constexpr double patience = 30;

    IncrementalTransfers(X11Connection &connection, MainQueue &queue);
    ~IncrementalTransfers();
    IncrementalTransfers(const IncrementalTransfers &) = delete;
    IncrementalTransfers &operator=(const IncrementalTransfers &) = delete;

    enum class End {
        AllTaken,
        Abandoned,
    };
    using Ended = std::function<void(End)>;

    /// Announces `bytes` in a property of the reader's window; the caller then tells the reader.
    /// False, and nothing is written, when the window is gone or too many transfers run. Otherwise
    /// `ended` is called once, later, unless this object is destroyed before.
    bool begin(xcb_window_t reader, xcb_atom_t property, xcb_atom_t type, const QByteArray &bytes,
               Ended ended = {});

    std::size_t count() const { return m_transfers.size(); }

private:
    struct Transfer {
        xcb_window_t reader;
        xcb_atom_t property;
        xcb_atom_t type;
        QByteArray bytes;
        qsizetype sent;
        double lastProgress;
        bool isEndTold;
        Ended ended;
    };

    void handle(const xcb_generic_event_t &event);
    void handlePropertyRemoved(xcb_window_t reader, xcb_atom_t property);
    /// False when that was the end.
    bool sendPiece(Transfer &transfer);
    bool listenTo(xcb_window_t reader);
    void endQuietly(xcb_window_t reader);
    template<typename Predicate>
    void endWhere(Predicate isOver);

    X11Connection &m_connection;
    MainQueue &m_queue;
    Subscription m_listener;
    qsizetype m_pieceBytes;
    std::list<Transfer> m_transfers;
    std::unique_ptr<MainQueue::Timer> m_patienceTimer;
};

} // namespace corvane
