#pragma once

#include <QElapsedTimer>
#include <QObject>

#include <functional>
#include <memory>

class QWindow;

namespace corvane {

/// One strip at a screen's top edge, there until it is retired.
///
/// A pointer that rests where it comes up has not come to it, until it moves there.
class EdgeStrip : public QObject {
public:
    /// Milliseconds within which a desktop tells of a pointer that was there before.
    static constexpr qint64 settling = 200;

    /// Each may retire the strip.
    struct Events {
        std::function<void()> pointerCame;
        std::function<void()> pointerWent;
        std::function<void(bool isOwn)> dragEntered;
        std::function<void()> dragWent;
    };
    enum class Entering {
        Counts,
        /// It may be told of a pointer that is elsewhere: only moves count.
        Unreliable,
    };
    /// The window has just been shown.
    EdgeStrip(std::unique_ptr<QWindow> window, Entering entering, Events events);
    ~EdgeStrip() override;

    /// Tells nobody anything any more, and takes it away; later, if something is dragged over it,
    /// once that has left. Qt goes on using the window until then, and sway its surface, even if
    /// they are gone: it would take a surface that is made meanwhile for this one.
    void retire();
    /// Takes it away at once, and destroys it once none of its events is being handled.
    void end();

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void pointerMoved(bool hasJustCome);
    void pointerLeft();
    void dragEntered(bool isOwn);
    void dragIsGone();

    Entering m_entering;
    Events m_events;
    QElapsedTimer m_sinceShown;
    bool m_hasPointer = false;
    bool m_hasDrag = false;
    bool m_isRetired = false;
    std::unique_ptr<QWindow> m_window;
};

} // namespace corvane
