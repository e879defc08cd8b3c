#pragma once

#include "platform/x11/drags/property_reader.h"
#include "platform/x11_client.h"

namespace corvane::test {

/// A program that something is dragged into. It asks the way GTK 4 does: from a window that the
/// drop was not sent to, and without a time.
class DropTarget : public X11Client {
public:
    explicit DropTarget(const QRect &frame);
    ~DropTarget() override { stopThread(); }

    /// What it was given, by the type it asked for; none for what was refused.
    std::optional<QByteArray> received(const QByteArray &type);
    bool isOver();
    bool hasFinished();
    QList<QByteArray> targets();
    QList<QByteArray> actions();
    /// The types that the source named when it came.
    QList<QByteArray> announced();
    /// Ends the window that it asks from.
    void closeAsker();

    enum class Finish {
        Well,
        Failed,
        Never,
        /// Its windows are gone instead.
        Dies,
        /// As soon as something is coming piece by piece, of which it takes no more.
        InTheMiddle,
    };
    Finish finish = Finish::Well;
    /// Asked for after the drop, in order; `TARGETS` comes first by itself.
    QList<QByteArray> wanted;
    bool accepts = true;
    /// Refuses each time, and thinks better of it at once.
    bool hesitates = false;
    bool wantsAllThatIsAnnounced = false;

private:
    void handle(const xcb_generic_event_t &event) override;
    void handleMessage(const xcb_client_message_event_t &message);
    void readTargets();
    void takeGiven();
    void ask();
    void sayHowItEnded();
    QList<QByteArray> atomNames(const QByteArray &atoms);

    xcb_window_t m_asker;
    PropertyReader m_reader;
    xcb_window_t m_source = e2e::noWindow;
    int m_positions = 0;
    qsizetype m_next = 0;
    QByteArray m_asked;
    bool m_hasFinished = false;
    QHash<QByteArray, std::optional<QByteArray>> m_received;
    QList<QByteArray> m_targets;
    QList<QByteArray> m_actions;
    QList<QByteArray> m_announced;
};

} // namespace corvane::test
