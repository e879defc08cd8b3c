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

/// Asks the owner of a selection for its contents, and waits for them without standing still.
///
///     Asked --answer: refused, or the owner's program ends--------------> over
///     Asked --answer: a property--> Taking: a slice in each turn -------> arrived
///     Asked --answer: piece by piece--> Waiting <--taken-- Taking
///     Waiting --the owner sets the property--> Taking;  an empty one ---> arrived
///
/// Every read has a window of its own, which goes with it: what an owner writes late reaches
/// nobody. An owner that does nothing for a while, or never comes to an end, is given up. A clock
/// runs only while something is read. The connection and the queue must outlive it.
class SelectionReader {
public:
    using Outcome = IncomingDrag::Outcome;
    using Done = IncomingDrag::Fetched;
    using Id = std::uint64_t;

    /// Seconds without a byte after which an owner counts as gone. Some programs make what they
    /// offer only now, from a large document.
    static constexpr double patience = 30;
    /// Seconds that a read may take in all.
    static constexpr double longest = 600;
    /// So much is taken from the server in one turn of the event loop.
    static constexpr std::uint32_t sliceBytes = 1024 * 1024;

    SelectionReader(X11Connection &connection, MainQueue &queue, const char *selection);
    ~SelectionReader();
    SelectionReader(const SelectionReader &) = delete;
    SelectionReader &operator=(const SelectionReader &) = delete;

    /// `time` is that of the event that gave the right to ask. `done` is called later, once, unless
    /// the read is cancelled before.
    Id read(xcb_atom_t target, xcb_timestamp_t time, qsizetype maximumBytes, Done done);
    void cancel(Id id);

    /// Who owns the selection now, by asking the server.
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
        /// While a piece was being taken: that may be the last one.
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
    /// False when that was the last, or the read is over.
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
    /// The news of the owner's end come to this one.
    xcb_window_t m_watch;
    std::list<Read> m_reads;
    Id m_nextId = 1;
    std::unique_ptr<MainQueue::Timer> m_patienceTimer;
    Lifetime m_lifetime;
};

} // namespace corvane
