#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/drop_support.h"
#include "platform/x11/drags/selection_reader.h"
#include "platform/x11/drags/x11_incoming_drag.h"

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <QPointer>
#include <QWindow>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace corvane {

/// Handles what other programs drag over our panels and drop on them, before Qt sees it.
///
///     XdndEnter ----> who drags, and what it offers
///     XdndPosition -> Qt; held back, where the answer depends on addresses, until these are here
///     XdndDrop -----> Qt sees the drag leave; the receiver fetches what it wants in its own time,
///                     and then the source is told how its drop ended
///
/// Drags between Qt's own windows do not come this way. The connection and the queue must outlive
/// it; it must be made after the application object. When the program ends, sources that still wait
/// are told that their drops were not taken.
class X11DropSupport : public DropSupport, public QAbstractNativeEventFilter {
public:
    /// In seconds: how long the answer to a hovering drag is delayed until its addresses are here.
    static constexpr double hoverPatience = 5;
    /// Larger address lists are not read.
    static constexpr qsizetype maximumAddressBytes = 64LL * 1024 * 1024;
    /// More drops at once are refused.
    static constexpr std::size_t maximumDrops = 32;

    X11DropSupport(X11Connection &connection, MainQueue &queue);
    ~X11DropSupport() override;
    X11DropSupport(const X11DropSupport &) = delete;
    X11DropSupport &operator=(const X11DropSupport &) = delete;

    Subscription addReceiver(QWindow &window, DropReceiver &receiver) override;
    std::shared_ptr<IncomingDrag> incomingDrag() override { return m_drag; }

    /// Something was let go over a panel, which Qt has not been told yet. May be empty.
    std::function<void()> onDropped;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;

private:
    struct Place {
        QPointer<QWindow> window;
        DropReceiver *receiver = nullptr;
    };

    DropReceiver *receiverOf(xcb_window_t window) const;
    void enter(const xcb_client_message_event_t &message, const DropReceiver &receiver);
    /// True if the message is held back from Qt.
    bool position(const xcb_client_message_event_t &message, const DropReceiver &receiver);
    /// Forgets the drag that is over a panel, and returns it.
    std::shared_ptr<X11IncomingDrag> leave();
    void drop(xcb_client_message_event_t &message, DropReceiver &receiver);
    void fetchAddresses(QStringList types);
    void decide();
    void finishDrops();

    X11Connection &m_connection;
    MainQueue &m_queue;
    SelectionReader m_reader;
    ChangingList<Place> m_places;
    std::shared_ptr<X11IncomingDrag> m_drag;
    enum class Addresses {
        NotNeeded,
        Needed,
        Asked,
    } m_addresses
        = Addresses::NotNeeded;
    /// The latest XdndPosition that was held back from Qt.
    std::optional<xcb_client_message_event_t> m_held;
    std::vector<std::weak_ptr<X11IncomingDrag>> m_drops;
    QMetaObject::Connection m_programEnds;
    Lifetime m_lifetime;
};

} // namespace corvane
