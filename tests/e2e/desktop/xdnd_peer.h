#pragma once

#include "e2e/desktop/eventually.h"
#include "e2e/desktop/x_desktop.h"

#include <QHash>
#include <QList>
#include <QRect>

#include <xcb/xcb.h>

#include <optional>

namespace corvane::e2e {

/// A small window of a program of its own, which speaks drag and drop by hand: so that a test can
/// say exactly what is offered, and can misbehave where real programs do so only now and then.
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
    /// Any message, also one that no sane program would send.
    void send(xcb_window_t to, const QByteArray &type, std::array<uint32_t, 5> data);
    /// The connection ends at once, as when the program is killed.
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
        /// A type that is offered, asked for, and not answered before `answerTheRest`.
        bool isSilent = false;
    };
    struct Status {
        bool accepts = false;
        QByteArray action;
    };

    XdndSource(XDesktop &desktop, QList<Offer> offers,
               QByteArray proposedAction = "XdndActionCopy");

    /// Presses in its own window, moves, and takes the drag selection: from here on the desktop
    /// knows that something is being dragged.
    void pickUp();
    /// Moves over the target and asks it.
    void enter(xcb_window_t target, QPoint point);
    /// What it answered to that; none where no answer comes.
    std::optional<Status> waitForStatus();
    /// Moves over the target, asks it, and waits for the answer.
    std::optional<Status> hover(xcb_window_t target, QPoint point);
    void leave(xcb_window_t target);
    /// Releases the button over the target that was hovered last, and tells it so.
    void drop();
    /// Releases without telling anybody: what follows after `leave`.
    void letGo();
    /// What the target said at the end; none where it never did.
    std::optional<Status> waitForFinish();
    bool hasFinished() const { return m_finish.has_value(); }

    /// Answers what was asked for of silent types so far, and speaks from now on.
    void answerTheRest();
    /// How much goes into one property; more is handed over piece by piece.
    void setLargestPiece(qsizetype bytes) { m_largestPiece = bytes; }

    /// The types that were asked for, in order.
    QList<QByteArray> asked() const { return m_asked; }
    /// Bytes of the transfers under way that have not been fetched yet.
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
    /// Of silent types.
    QList<xcb_selection_request_event_t> m_unanswered;
    qsizetype m_largestPiece;
    QByteArray m_proposedAction;
    xcb_window_t m_target = noWindow;
    std::optional<Status> m_status;
    std::optional<Status> m_finish;
    QList<QByteArray> m_asked;
    QList<Transfer> m_transfers;
};

/// Takes what is dropped on it, or refuses it.
class XdndTarget : public XdndPeer {
public:
    enum class Finish {
        /// As what was fetched says.
        Honest,
        /// Says that it failed, whatever it fetched.
        Failed,
        /// Says that all is well, and fetches nothing.
        WellWithoutFetching,
        Never,
    };
    Finish finish = Finish::Honest;

    XdndTarget(XDesktop &desktop, const QRect &frame, bool accepts, QByteArray wantedType);

    /// Whether something is over it and has been answered.
    bool isHovered() const { return m_positions > 0; }
    bool hasDrop() const { return m_data.has_value(); }
    /// Whether something was let go over it, taken or not.
    bool wasDroppedOn() const { return m_wasDroppedOn; }
    /// Whether it has said how the drop ended, or would have.
    bool hasFinished() const { return m_hasFinished; }
    QByteArray data() const { return m_data.value_or(QByteArray()); }
    QList<QByteArray> offeredTypes() const { return m_types; }
    QList<QByteArray> offeredActions() const { return m_actions; }
    /// Says what `finish` wants said.
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
