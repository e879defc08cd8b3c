#pragma once

#include "platform/base/changing_list.h"
#include "platform/base/lifetime.h"
#include "platform/desktop/drop_hover.h"
#include "platform/desktop/drop_support.h"
#include "platform/wayland/base/handled_mark.h"
#include "platform/wayland/drags/catcher_services.h"
#include "platform/wayland/drags/pointer_presses.h"

#include <QObject>
#include <QPointer>
#include <QWindow>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct wl_data_device;
struct wl_data_offer;
struct wl_surface;

namespace corvane {

class DropCatcher;
class LayerPanelSurface;
class WaylandConnection;
class WaylandIncomingDrag;

/// Takes what other programs drag over our panels and drop on them, in place of Qt: Qt stands still
/// while it fetches, and then tells the source at once that the drop is over.
///
/// Two of one program cannot both answer for the same surface. So while something is dragged, each
/// panel lies under a surface of a connection of our own, see `DropCatcher`:
///
///     expect --the pointer comes without anything, a drop, or a while--> the surfaces are gone
///
/// A drag that comes to a panel unexpected is refused by that, and is over the catcher from its
/// next move on. What it is given must outlive it, and the application object.
class WaylandDropSupport : public QObject, public DropSupport {
public:
    /// More drops at once are refused.
    static constexpr std::size_t maximumDrops = 32;
    /// In seconds: so long a drag is waited for that does not come. What touches the screen and is
    /// no pointer would be lost on the catchers all the while.
    static constexpr double patience = 60;

    /// The panels are shown on that connection.
    WaylandDropSupport(WaylandConnection &connection, MainQueue &queue, LayerPanelSurface &panels);
    ~WaylandDropSupport() override;

    /// Whether the compositor offers all that it takes.
    bool isAble() const { return m_services.areAll(); }

    /// Another program drags something. May be told again.
    void expect();
    /// What is over a panel was let go there. Told before it is no longer over it.
    std::function<void()> onDropped;
    /// What is dragged went away from a panel, or is no longer dragged.
    std::function<void()> onLeft;
    /// The pointer came to a panel with nothing that is dragged.
    std::function<void()> onPointer;
    /// Whether what comes to our windows is dragged by ourselves. May be left empty.
    std::function<bool()> isOwnDrag;

    Subscription addReceiver(QWindow &window, DropReceiver &receiver) override;
    std::shared_ptr<IncomingDrag> incomingDrag() override;

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Listeners;
    struct Place {
        QPointer<QWindow> window;
        DropReceiver *receiver = nullptr;
    };

    void cover(QWindow &window);
    void uncover(const QWindow &window);
    void followSoon(QWindow &window);
    void follow(QWindow &window);
    void rest();
    void stepAside();
    void pointerIsHere();
    DropReceiver *receiverOf(const QWindow &window) const;
    DropHover::Panel panelOf(QWindow &window);
    void enter(std::uint32_t serial, wl_surface *surface, QPointF at, wl_data_offer *offer);
    void leave();
    void left();
    void drop();

    WaylandConnection &m_connection;
    MainQueue &m_queue;
    LayerPanelSurface &m_panels;
    CatcherServices m_services;
    PointerPresses m_presses;
    wl_data_device *m_device = nullptr;
    ChangingList<Place> m_places;
    bool m_isExpecting = false;
    /// Qt's events of drags are our own just now.
    bool m_isTelling = false;
    std::vector<std::unique_ptr<DropCatcher>> m_catchers;
    /// Those that stepped aside, until the mark is reached.
    std::vector<std::unique_ptr<DropCatcher>> m_leaving;
    std::unique_ptr<HandledMark> m_handled;
    /// Announced, and not over a panel yet.
    std::shared_ptr<WaylandIncomingDrag> m_announced;
    std::shared_ptr<WaylandIncomingDrag> m_drag;
    std::unique_ptr<DropHover> m_hover;
    std::vector<std::weak_ptr<WaylandIncomingDrag>> m_drops;
    /// Restarted where the drag that is waited for is another one.
    Lifetime m_waiting;
    Lifetime m_lifetime;
};

} // namespace corvane
