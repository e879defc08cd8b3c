#pragma once

#include "e2e/desktop/eventually.h"
#include "e2e/desktop/x_desktop.h"

#include <QHash>
#include <QList>
#include <QRect>

#include <xcb/xcb.h>

#include <optional>

namespace corvane::e2e {

/// A small window on a connection of its own, with drag and drop written by hand, so that a test
/// decides exactly what is offered, and can do wrong what real programs do wrong only rarely.
class XdndPeer {
public:
    XdndPeer(XDesktop &desktop, const QRect &frame);
    virtual ~XdndPeer();
    XdndPeer(const XdndPeer &) = delete;
    XdndPeer &operator=(const XdndPeer &) = delete;

    xcb_window_t window() const { return m_window; }
    QRect frame() const { return m_frame; }

    /// Handles what has arrived since the last call.
    void pump();
    /// Waits as eventually() does, and goes on answering meanwhile.
    template<class Condition>
    bool pumpUntil(Condition &&condition,
                   std::chrono::milliseconds limit = std::chrono::seconds{20});

    int clicks() const { return m_clicks; }
    /// Sends any client message, also a wrong one.
    void send(xcb_window_t to, const QByteArray &type, std::array<uint32_t, 5> data);
    /// Closes the connection, as when the program is killed.
    void die();

protected:
    virtual void clientMessage(const xcb_client_message_event_t &) { }
    virtual void otherEvent(const xcb_generic_event_t &) { }

    xcb_connection_t *connection() { return m_connection->connection(); }
    xcb_atom_t atom(const QByteArray &name);
    QByteArray nameOf(xcb_atom_t atom);

    XDesktop &m_desktop;

private:
    std::unique_ptr<XServer> m_connection;
    xcb_window_t m_window = noWindow;
    QRect m_frame;
    QHash<QByteArray, xcb_atom_t> m_atoms;
    int m_clicks = 0;
};

/// Drags something towards a window.
class XdndSource : public XdndPeer {
public:
    struct Offer {
        QByteArray type;
        QByteArray data;
        /// The type is offered, but requests for it are not answered before `answerTheRest`.
        bool isSilent = false;
    };
    struct Status {
        bool accepts = false;
        QByteArray action;
    };

    XdndSource(XDesktop &desktop, QList<Offer> offers,
               QByteArray proposedAction = "XdndActionCopy");

    /// Presses in its own window, moves, and takes the drag selection, which starts a drag.
    void pickUp();
    /// Moves over the target and sends it a position.
    void enter(xcb_window_t target, QPoint point);
    /// The target's answer; none if none comes.
    std::optional<Status> waitForStatus();
    /// Moves over the target, asks it, and waits for the answer.
    std::optional<Status> hover(xcb_window_t target, QPoint point);
    void leave(xcb_window_t target);
    /// Releases the button over the target that was hovered last, and sends it the drop.
    void drop();
    /// Releases the button without a message; to be used after `leave`.
    void letGo();
    /// The target's message at the end; none if none comes.
    std::optional<Status> waitForFinish();
    bool hasFinished() const { return m_finish.has_value(); }

    /// Answers the requests for silent types so far, and later ones at once.
    void answerTheRest();
    /// The most bytes that are given in one property; more is given piece by piece.
    void setLargestPiece(qsizetype bytes) { m_largestPiece = bytes; }

    /// The types that were asked for, in order.
    QList<QByteArray> asked() const { return m_asked; }
    /// Bytes of incremental transfers that have not been fetched yet.
    qsizetype unsent() const
    {
        qsizetype sum = 0;
        for (const Transfer &transfer : m_transfers)
            sum += transfer.data.size() - transfer.sent;
        return sum;
    }

protected:
    void clientMessage(const xcb_client_message_event_t &message) override;
    void otherEvent(const xcb_generic_event_t &event) override;

private:
    struct Transfer {
        xcb_window_t requestor;
        xcb_atom_t property;
        xcb_atom_t type;
        QByteArray data;
        qsizetype sent;
    };
    void answer(const xcb_selection_request_event_t &request);
    void goOn(Transfer &transfer);

    QList<Offer> m_offers;
    /// Requests for silent types.
    QList<xcb_selection_request_event_t> m_unanswered;
    qsizetype m_largestPiece;
    QByteArray m_proposedAction;
    xcb_window_t m_target = noWindow;
    std::optional<Status> m_status;
    std::optional<Status> m_finish;
    QList<QByteArray> m_asked;
    QList<Transfer> m_transfers;
};

/// A target that accepts or refuses drags.
class XdndTarget : public XdndPeer {
public:
    enum class Finish {
        /// Reports what is true.
        Honest,
        /// Reports a failure, whatever it fetched.
        Failed,
        /// Reports success without fetching anything.
        WellWithoutFetching,
        Never,
    };
    Finish finish = Finish::Honest;

    XdndTarget(XDesktop &desktop, const QRect &frame, bool accepts, QByteArray wantedType);

    /// Whether a drag is over it and was answered.
    bool isHovered() const { return m_positions > 0; }
    bool hasDrop() const { return m_data.has_value(); }
    /// Whether something was dropped on it, accepted or not.
    bool wasDroppedOn() const { return m_wasDroppedOn; }
    /// Whether it has reported the end of the drop, or would have (`Finish::Never`).
    bool hasFinished() const { return m_hasFinished; }
    QByteArray data() const { return m_data.value_or(QByteArray()); }
    QList<QByteArray> offeredTypes() const { return m_types; }
    QList<QByteArray> offeredActions() const { return m_actions; }
    /// Sends the message that `finish` asks for.
    void sayHowItEnded();

protected:
    void clientMessage(const xcb_client_message_event_t &message) override;
    void otherEvent(const xcb_generic_event_t &event) override;

private:
    bool m_accepts;
    QByteArray m_wantedType;
    xcb_window_t m_source = noWindow;
    QList<QByteArray> m_types;
    QList<QByteArray> m_actions;
    std::optional<QByteArray> m_data;
    int m_positions = 0;
    bool m_wasDroppedOn = false;
    bool m_hasFinished = false;
};

template<class Condition>
bool XdndPeer::pumpUntil(Condition &&condition, std::chrono::milliseconds limit)
{
    return eventually(
        [&] {
            pump();
            return static_cast<bool>(condition());
        },
        limit);
}

} // namespace corvane::e2e
