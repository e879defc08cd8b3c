#pragma once

#include "platform/desktop/incoming_drag.h"
#include "platform/x11/drags/file_arrival.h"
#include "platform/x11/drags/selection_reader.h"

#include <QHash>

#include <memory>
#include <vector>

namespace corvane {

/// Another program's drag by the XDND protocol. The connection, the queue and the reader must
/// outlive it, or `forget` must be called before they are destroyed.
class X11IncomingDrag : public IncomingDrag, public std::enable_shared_from_this<X11IncomingDrag> {
public:
    /// The type by which a source offers to write a file itself (the XDS protocol).
    static constexpr auto directSave = "XdndDirectSave0";
    /// Further types are ignored.
    static constexpr std::uint32_t maximumTypes = 256;

    /// The source's window, our window below the pointer, and the types that XdndEnter named.
    struct Source {
        xcb_window_t source;
        xcb_window_t target;
        std::vector<xcb_atom_t> types;
    };
    X11IncomingDrag(X11Connection &connection, MainQueue &queue, SelectionReader &reader,
                    const Source &source);
    ~X11IncomingDrag() override;

    QStringList types() const override { return m_types; }
    QByteArray fetched(const QString &type) const override { return m_fetched.value(type); }
    void fetch(const QString &type, qsizetype maximumBytes, Fetched done) override;
    std::optional<QString> promisedFileName() override;
    void receivePromisedFile(const QUrl &destination, std::function<void(bool)> done) override;
    void finish(bool isTaken) override;

    /// Whether `types` have contents that can be kept if a promised file does not arrive: a
    /// picture, an address or a text.
    static bool haveContents(const QStringList &types);

    xcb_window_t source() const { return m_source; }
    xcb_window_t target() const { return m_target; }
    /// Sets the time for requests; the source answers only those with the time that it told.
    void setTime(xcb_timestamp_t time) { m_time = time; }
    /// The drag was dropped: the source waits for `finish` from now on.
    void setDropped() { m_isDropped = true; }
    /// Finishes a drop as not taken, and stops using the references, which may be destroyed then.
    void forget();

private:
    void waitForFile(std::function<void(bool)> done);
    void readLater(Outcome outcome, const QByteArray &bytes, Fetched done);
    xcb_window_t proxy() const;

    X11Connection *m_connection;
    MainQueue *m_queue;
    SelectionReader *m_reader;
    xcb_window_t m_source;
    xcb_window_t m_target;
    xcb_window_t m_owner;
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    bool m_isDropped = false;
    QStringList m_types;
    QHash<QString, xcb_atom_t> m_atoms;
    QHash<QString, QByteArray> m_fetched;
    std::vector<SelectionReader::Id> m_reads;
    std::unique_ptr<FileArrival> m_arrival;
};

} // namespace corvane
