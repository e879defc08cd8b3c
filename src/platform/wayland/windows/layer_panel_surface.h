#pragma once

#include "platform/desktop/keyboard_focus.h"
#include "platform/desktop/panel_surface.h"
#include "platform/wayland/windows/layer_surface.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <map>
#include <memory>

namespace corvane {

/// Panels as parts of a screen, above everything else there.
///
/// A panel's window is larger than the panel, so that a panel which grows or moves a little changes
/// what is painted and what takes clicks, and not the surface. Each time that a panel is shown it
/// gets a surface of its own, on the screen that it is placed on then; it is hidden and shown again
/// where that changes meanwhile. The connection must outlive it.
class LayerPanelSurface : public QObject, public PanelSurface {
public:
    explicit LayerPanelSurface(WaylandConnection &connection);
    ~LayerPanelSurface() override;

    void adopt(QWindow &window) override;
    PanelSpace place(QWindow &window, const PanelPlacement &placement) override;
    QScreen *screenOf(const QWindow &window) const override;
    void willShow(QWindow &window) override;
    void didHide(QWindow &window) override;
    void setInputRegion(QWindow &window, const QRegion &region) override;
    void setBoundingRegion(QWindow &window, const QRegion &region) override;

    /// The panel that has the keyboard; none where that is another window of ours, or of another
    /// program.
    WindowNumber panelWithKeyboard() const;
    /// Gives that panel the keyboard, and takes it from every other one; none for all.
    void giveKeyboard(WindowNumber number);
    /// Takes the keyboard from the panel that has it, for whoever had it before.
    void giveKeyboardBack();
    /// The pointer is on the panel that has the keyboard.
    bool isPointerAtKeyboard() const;
    /// The compositor has the keyboard with a panel, whether that asks for it or not.
    bool isFocused() const;

    /// What its window takes up of its screen; empty while it is hidden. Qt gives such windows
    /// other places.
    QRect spaceOf(const QWindow &window) const;
    /// The part of it that takes clicks, in points.
    QRegion inputRegionOf(const QWindow &window) const;
    /// While covered it takes none, since something else there does: of several surfaces in one
    /// layer some compositors have the newest on top, and some the oldest.
    void setCovered(QWindow &window, bool isCovered);

    /// What is dragged was let go over a panel, which has not been told yet.
    std::function<void()> onDropped;
    /// The compositor may have the keyboard with a panel that does not ask for it, or no longer
    /// does.
    std::function<void()> onKeyboardLeftBehind;
    /// A panel has got the keyboard, or none has it any more.
    std::function<void()> onKeyboardMoved;
    /// The pointer came to a panel, or is there, with nothing that is dragged.
    std::function<void()> onPointer;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Panel {
        WindowNumber number = WindowNumber::None;
        QPointer<QScreen> screen;
        QRect frame;
        /// What its window takes up of the screen since it is shown; empty while it is hidden.
        QRect space;
        /// In points.
        QRegion input;
        bool isCovered = false;
        bool hasKeyboard = false;
        bool hasPointer = false;
        std::unique_ptr<LayerSurface> surface;
    };

    void applyInputRegion(QWindow &window, const Panel &panel);
    PanelSpace fit(QWindow &window, Panel &panel);
    void hangUp(QWindow &window, Panel &panel);
    void showAnew(QWindow &window);
    void tellKeyboard() const;
    static QRect geometryOf(const Panel &panel);
    static QScreen *screenFor(const Panel &panel);

    WaylandConnection &m_connection;
    std::map<const QWindow *, Panel> m_panels;
};

} // namespace corvane
