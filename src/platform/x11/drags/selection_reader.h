#pragma once

#include "platform/base/lifetime.h"
#include "platform/base/main_queue.h"
#include "platform/desktop/incoming_drag.h"
#include "platform/x11/base/x11_connection.h"

#include <cstdint>
#include <functional>
#include <list>
#include <memory>

namespace corvane {

/// Asks the owner of a selection for its contents, and waits for them without blocking.
///
///     Asked --answer: refused, or the owner's program ends--------------> over
///     Asked --answer: a property--> Taking: a slice in each turn -------> arrived
///     Asked --answer: piece by piece--> Waiting <--taken-- Taking
///     Waiting --the owner sets the property--> Taking;  an empty one ---> arrived
///
/// Every read has a window of its own, which is destroyed at its end, so that late answers of an
/// owner are not taken for another read's. An owner that does nothing for a while, or takes too
/// long in all, is given up. A timer runs only while something is read. The connection and the
/// queue must outlive it.
class SelectionReader {
public:
    using Outcome = IncomingDrag::Outcome;
    using Done = IncomingDrag::Fetched;
    using Id = std::uint64_t;

    /// In seconds: an owner that sends nothing for so long is given up. Some programs only now make
    /// what they offer, from a large document.
    static constexpr double patience = 30;
    /// In seconds: the most that a read may take in all.
    static constexpr double longest = 600;
    /// In bytes: how much is taken from the server in one turn of the event loop.
    static constexpr std::uint32_t sliceBytes = 1024 * 1024;

    SelectionReader(X11Connection &connection, MainQueue &queue, const char *selection);
    ~SelectionReader();
    SelectionReader(const SelectionReader &) = delete;
    SelectionReader &operator=(const SelectionReader &) = delete;

    /// Asks for `target`, with the time of the event that entitles us to ask. More than
    /// `maximumBytes` are not read. `done` is called once, later, on the main thread, unless the
    /// read is cancelled before.
    Id read(xcb_atom_t target, xcb_timestamp_t time, qsizetype maximumBytes, Done done);
    void cancel(Id id);

    /// The selection's present owner, asked of the server.
    xcb_window_t owner() const;
    std::size_t count() const { return m_reads.size(); }

private:
    enum class Stage {
        Asked,
        Waiting,
        Taking,
    };
    struct Read {
        Id id;
        xcb_window_t window;
        xcb_window_t owner;
        qsizetype maximumBytes;
        Done done;
        Stage stage;
        bool isIncremental;
        QByteArray bytes;
        std::uint32_t sliceOffset;
        double begun;
        double lastProgress;
        /// The owner ended while a piece was being taken, which may be the last one.
        bool hasOwnerEnded = false;
    };
    using Position = std::list<Read>::iterator;

    void handle(const xcb_generic_event_t &event);
    void answered(const xcb_selection_notify_event_t &notify);
    void propertySet(xcb_window_t window);
    void ownerEnded();
    void takeSlice(Id id);
    void takeSliceLater(const Read &read);
    void waitForMore(Position read);
    /// False when that was the last piece, or the read is over `maximumBytes`.
    bool append(Read &read, const xcb_get_property_reply_t &reply);
    void giveUpTheSilent();
    Position find(Id id);
    void finish(Position read, Outcome outcome);
    void drop(Position read);

    X11Connection &m_connection;
    MainQueue &m_queue;
    Subscription m_listener;
    xcb_atom_t m_selection;
    xcb_atom_t m_property;
    /// XFixes reports the end of a selection's owner to this window.
    xcb_window_t m_watch;
    std::list<Read> m_reads;
    Id m_nextId = 1;
    std::unique_ptr<MainQueue::Timer> m_patienceTimer;
    Lifetime m_lifetime;
};

} // namespace corvane
