#pragma once

#include "platform/wayland/windows/layer_surface.h"

#include <QBackingStore>
#include <QElapsedTimer>
#include <QWindow>

#include <functional>
#include <memory>

namespace corvane {

/// One invisible surface at a screen's top edge, shown until it is retired.
///
/// A pointer that rests where it comes up has not come to it, until it moves there.
class EdgeStrip : public QWindow {
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
    ~EdgeStrip() override;

    /// Takes it away, tells nobody anything any more, and destroys it once none of its events is
    /// being handled.
    void retire();

protected:
    bool event(QEvent *event) override;

private:
    void pointerMoved(bool hasJustCome);
    void pointerLeft();
    void paint();

    Events m_events;
    QElapsedTimer m_sinceShown;
    bool m_hasPointer = false;
    QBackingStore m_store;
    std::unique_ptr<LayerSurface> m_surface;
};

} // namespace corvane
