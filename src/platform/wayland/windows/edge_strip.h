#pragma once

#include "platform/wayland/windows/invisible_window.h"

#include <QElapsedTimer>

#include <functional>

namespace corvane {

/// One invisible surface at a screen's top edge, shown until it is retired.
///
/// A pointer that rests where it comes up has not come to it, until it moves there.
class EdgeStrip : public InvisibleWindow {
public:
    /// Milliseconds within which a compositor tells of a pointer that was there before.
    static constexpr qint64 settling = 200;

    /// Each may retire the strip.
    struct Events {
        std::function<void()> pointerCame;
        std::function<void()> pointerWent;
        std::function<void(bool isOwn)> dragEntered;
    };
    /// `area` from the screen's top left. The connection must outlive it.
    EdgeStrip(WaylandConnection &connection, QScreen &screen, const QRect &area, Events events);

    /// Tells nobody anything any more, and takes it away; later, if something is dragged over it,
    /// once that has left. Qt goes on using the window until then, and sway the surface, even if
    /// they are gone: it would take a surface that is made meanwhile for this one.
    void retire();
    /// Takes it away at once, and destroys it once none of its events is being handled.
    void end();

protected:
    bool event(QEvent *event) override;

private:
    void pointerMoved(bool hasJustCome);
    void pointerLeft();
    void dragEntered(bool isOwn);
    void dragIsGone();

    Events m_events;
    QElapsedTimer m_sinceShown;
    bool m_hasPointer = false;
    bool m_hasDrag = false;
    bool m_isRetired = false;
};

} // namespace corvane
