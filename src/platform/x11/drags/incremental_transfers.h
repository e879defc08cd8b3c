#pragma once

#include "platform/base/main_queue.h"
#include "platform/x11/base/x11_connection.h"

#include <QByteArray>

#include <cstddef>
#include <functional>
#include <list>

namespace corvane {

/// Hands contents that are too large for one request to other programs, piece by piece (the INCR
/// protocol of ICCCM).
///
///     begin: the property says how much is coming
///     the reader removes the property --> the next piece is put into it
///     all pieces taken                --> an empty one says so, and the transfer is over
///
/// A transfer also ends, and lets go of its contents, when the reader's window is gone, when the
/// reader takes nothing for a while, or when it asks anew for the same property. A transfer shares
/// the bytes that it was begun with, without copying them, so it does not need the drag. A timer
/// runs only while there are transfers. The connection and the queue must outlive it.
class IncrementalTransfers {
public:
    /// In bytes: what fits into one request on every server. Larger contents should be transferred
    /// here.
    static constexpr qsizetype wholeBytes = 192LL * 1024;
    /// In bytes: the size of a piece, less where the server allows less. Not smaller, because some
    /// readers copy all that they have got at each piece, and give up after a few seconds in all.
    static constexpr qsizetype pieceBytes = 1024LL * 1024;
    /// More at once are refused.
    static constexpr std::size_t maximumTransfers = 32;
    /// In seconds: a reader that takes no piece for so long is given up.
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

    /// Announces `bytes` in a property of the reader's window; the caller then has to notify the
    /// reader. False, and nothing is written, when the window is gone or too many transfers are
    /// going on. Otherwise `ended` is called once, later, unless this is destroyed before.
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
    /// False when that was the empty piece that ends the transfer.
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
