#pragma once

#include "e2e/desktop/x_server.h"

#include <QHash>
#include <QList>

#include <atomic>
#include <mutex>
#include <thread>

namespace corvane::test {

/// A small client of the X server on a thread of its own, which speaks drag and drop by hand: the
/// code under test waits for it on the main thread.
class X11Client {
public:
    explicit X11Client(const QRect &frame);
    virtual ~X11Client();
    X11Client(const X11Client &) = delete;
    X11Client &operator=(const X11Client &) = delete;

    xcb_window_t window() const { return m_window; }

protected:
    /// On the client's thread, in the order of the events.
    virtual void handle(const xcb_generic_event_t &event) = 0;
    void startThread();
    void stopThread();

    void sendMessage(xcb_window_t to, const char *type, std::array<std::uint32_t, 5> data);
    /// Goes out together with the next one that is sent.
    void queueMessage(xcb_window_t to, const char *type, std::array<std::uint32_t, 5> data);
    xcb_connection_t *connection() const { return m_server.connection(); }
    xcb_atom_t atom(const QByteArray &name);
    QByteArray nameOf(xcb_atom_t atom);
    void setBytes(xcb_window_t window, const char *property, xcb_atom_t type,
                  const QByteArray &bytes);

    e2e::XServer m_server{qgetenv("DISPLAY")};
    std::mutex m_mutex;

private:
    xcb_window_t m_window = e2e::noWindow;
    QHash<QByteArray, xcb_atom_t> m_atoms;
    std::mutex m_atomMutex;
    std::atomic<bool> m_isStopping = false;
    std::thread m_thread;
};

/// A program that something is dragged out of.
class DragSource : public X11Client {
public:
    static constexpr QRect frame{1300, 850, 100, 100};

    struct Answer {
        bool accepts = false;
        QByteArray action;
    };
    enum class DirectSave {
        Writes,
        /// First an empty file that is closed, then the contents.
        WritesTwice,
        WritesLink,
        AnswersOnly,
        Refuses,
    };

    DragSource(QHash<QByteArray, QByteArray> offers, QByteArray action);
    ~DragSource() override { stopThread(); }

    /// Takes the drag selection, which is what starts a drag.
    void pickUp();
    void putDown();
    /// Takes the clipboard's selection, and says on request what it has.
    void copy();
    void enter(xcb_window_t target);
    void moveTo(xcb_window_t target, QPoint point);
    void leave(xcb_window_t target);
    void drop(xcb_window_t target);

    /// Waits, running the event loop.
    std::optional<Answer> waitForStatus();
    std::optional<Answer> waitForFinish();
    QList<QByteArray> asked();

    /// Asked for these it says nothing before `answerTheRest`.
    void keepSilentAbout(const QByteArray &type);
    void answerTheRest();

    DirectSave directSave = DirectSave::Writes;
    QByteArray promisedBytes = "promised";

private:
    void handle(const xcb_generic_event_t &event) override;
    void asked(const xcb_selection_request_event_t &request);
    void answer(const xcb_selection_request_event_t &request);
    QByteArray saveDirectly();
    Answer answerFrom(std::uint32_t flags, xcb_atom_t action);

    QHash<QByteArray, QByteArray> m_offers;
    QList<QByteArray> m_silent;
    QList<xcb_selection_request_event_t> m_unanswered;
    QByteArray m_action;
    std::optional<Answer> m_status;
    std::optional<Answer> m_finish;
    QList<QByteArray> m_asked;
};

} // namespace corvane::test
