#pragma once

#include <QByteArray>
#include <QList>
#include <QPoint>
#include <QRegion>
#include <QSize>
#include <QTemporaryDir>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <thread>

namespace corvane::test {

/// A compositor that shows nothing, and tells what it would show: surfaces as their programs have
/// committed them, and what was asked of it for a drag. One output, whose pixels are two to a
/// point, and others that a test plugs in; a pointer that a test moves; drags that a test makes. It
/// runs in a thread of its own.
class FakeCompositor {
public:
    static constexpr int scale = 2;
    /// In points.
    static constexpr QSize screen{1512, 982};

    FakeCompositor();
    ~FakeCompositor();
    FakeCompositor(const FakeCompositor &) = delete;
    FakeCompositor &operator=(const FakeCompositor &) = delete;

    /// For WAYLAND_DISPLAY; empty if it could not be started.
    QByteArray socket() const { return m_socket; }

    /// Another output of that size, as long as this is there.
    class Output {
    public:
        Output(FakeCompositor &compositor, QPoint at);
        ~Output();
        Output(const Output &) = delete;
        Output &operator=(const Output &) = delete;

        std::size_t number() const { return m_number; }
        /// From now on what is hung on no particular output is shown on it.
        void becomeCurrent();

    private:
        FakeCompositor &m_compositor;
        std::size_t m_number;
    };

    /// What counts of a surface since its last commit.
    struct Surface {
        /// In points. None for one that takes everything.
        std::optional<QRegion> input;
        int bufferScale = 1;
        /// Where its buffer was put in its last commit, from where the one before was.
        QPoint attachedAt;
        /// Of a part of another surface: where it is in that. It is as it was committed once that
        /// has been committed, too.
        std::optional<QPoint> placeInWhole;
        /// In pixels; empty while it is not shown.
        QSize buffer;

        // Of those that are hung from the screen's edges, in points.
        QByteArray label;
        /// The number of its output, from 0 on in the order in which they were plugged in.
        std::size_t output = 0;
        std::uint32_t layer = 0;
        std::int32_t zone = 0;
        QSize size;
        QPoint margin;
    };
    /// All that are shown and hung from the screen's edges with that label, the newest last.
    QList<Surface> shown(const QByteArray &label = "corvane") const;
    /// All that are shown and nothing of the screen's: pictures under the pointer, for example.
    QList<Surface> loose() const { return shown({}); }

    /// The pointer comes with nothing to the newest surface of that label.
    void point(const QByteArray &label);

    /// A drag of another program.
    struct Drag {
        QList<QByteArray> types{"text/plain"};
        /// Bits of the protocol; none where the compositor does not know yet.
        std::optional<std::uint32_t> sourceActions = copy;
    };
    static constexpr std::uint32_t copy = 1;
    static constexpr std::uint32_t move = 2;
    /// What was asked for the last drag that came to somebody.
    struct Answer {
        /// The type of the last answer; empty for a refusal, none before the first.
        std::optional<QByteArray> accepted;
        std::uint32_t actions = 0;
        int finishes = 0;
        /// The types whose contents were asked for, one after the other.
        QList<QByteArray> asked;
        bool isGone = false;
    };
    /// The drag comes to the newest surface of that label. Whether there is one of somebody who
    /// hears of drags.
    bool drag(const QByteArray &label, QPoint at, const Drag &what);
    /// What the source allows has become known.
    void tellSourceActions(std::uint32_t actions);
    /// What the compositor has made of that and of the answer.
    void tellAction(std::uint32_t action);
    /// Contents for whoever has asked first and not got any yet.
    void send(const QByteArray &contents);
    void drop();
    void leave();
    Answer answer() const;

private:
    struct Server;

    void within(const std::function<void()> &work) const;

    QTemporaryDir m_folder;
    QByteArray m_socket;
    std::unique_ptr<Server> m_server;
    std::thread m_thread;
};

/// The one that this program's windows are shown by.
FakeCompositor &compositor();

} // namespace corvane::test
